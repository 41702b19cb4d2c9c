#include "NameFamilies.h"

#include "ZebTypes.h"

namespace {

struct Family {
    const char* key;
    int groupDir;
    int subDir;
    int fileName;
};

constexpr Family Export{"export/", 0, 1, 2};
constexpr Family Convert{"convert/", 3, 4, 5};
constexpr Family Snap{"snap/", 6, 7, 8};
constexpr Family Report{"report/", 9, 10, 11};
constexpr Family Layout{"layout/", -1, 15, 16};
/// The name of data that is written beside the images.
constexpr int DataNameSlot = 13;

const Family& familyOf(int type) {
    switch (type) {
        case zeb::LayoutFile:
        case zeb::OtherLayoutFile:
        case zeb::UnnamedLayoutFile:
            return Layout;
        case zeb::ConvertedFile:
        case zeb::UnnamedConvertedFile:
            return Convert;
        case zeb::SnapShotFile:
            return Snap;
        case zeb::ReportFile:
        case zeb::UnnamedReportFile:
            return Report;
        default:
            return Export;
    }
}

}  // namespace

QString nameFamily(int type) {
    return familyOf(type).key;
}

int groupDirSlot(int type) {
    return familyOf(type).groupDir;
}

int subDirSlot(int type) {
    return familyOf(type).subDir;
}

int fileNameSlot(int type) {
    return familyOf(type).fileName;
}

QString slotKey(int slot) {
    if (slot == DataNameSlot) {
        return QStringLiteral("export/fd/dataname");
    }
    if (slot < 0) {
        return {};
    }
    for (const Family* family : {&Export, &Convert, &Snap, &Report, &Layout}) {
        const QString key = family->key;
        if (slot == family->groupDir) {
            return key + QStringLiteral("groupdir");
        }
        if (slot == family->subDir) {
            return key + QStringLiteral("subdir");
        }
        if (slot == family->fileName) {
            return key + QStringLiteral("filename");
        }
    }
    return {};
}

QString numberKey(int slot) {
    const QString key = slotKey(slot);
    return key.isEmpty() || slot == Report.groupDir ? QString() : key + QStringLiteral("addnumber");
}

NumberDigits slotDigits(const PrefReader& pref, int slot) {
    if (!pref) {
        return {3, 3, 4};
    }
    const QString key = numberKey(slot);
    if (key.isEmpty()) {
        return {};
    }
    const auto digits = [&](const char* number) { return pref(key + number + QStringLiteral("nodigits")).toInt(); };
    const bool isReport = slot == Report.subDir || slot == Report.fileName;
    return {isReport ? 0 : digits("camera"), isReport ? 0 : digits("head"), digits("session")};
}

NumberDigits autoDigits(const DeviceCounts& counts) {
    const auto lengthOf = [](int number) { return QString::number(number).size(); };
    return {lengthOf(counts.devices), counts.heads > 1 ? lengthOf(counts.heads) : 0, 0};
}

NumberDigits digitsFor(const PrefReader& pref, int slot, bool isFileMode, const std::optional<DeviceCounts>& counts) {
    const NumberDigits digits = slotDigits(pref, slot);
    if (isFileMode) {
        return {0, 0, digits.session};
    }
    const bool isAuto = pref && pref(slotKey(slot) + QStringLiteral("addnumberformat")).toString() == "auto";
    const NumberDigits needed = isAuto && counts ? autoDigits(*counts) : digits;
    return {needed.camera, needed.head, digits.session};
}
