#include "BridgeCall.h"
#include "DOC_Interface.h"
#include "DOC_Storage.h"
#include "FolderChoice.h"
#include "JS_Mediator_FileDialog.h"
#include "NameFamilies.h"
#include "SizeText.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMedia.h"

#include <QJsonDocument>

#include <algorithm>

namespace {

const QString DriveName = QStringLiteral("drivename");

bool isSame(const zeb::Medium& left, const zeb::Medium& right) {
    return left.type == right.type && left.drive == right.drive && left.slot == right.slot;
}

/// `selected` is the index of the open one, below 0 when none of the list is open.
QString listText(const QJsonArray& records, int selected) {
    const int select = records.isEmpty() ? -1 : qMax(0, selected);
    const QJsonObject list{{QStringLiteral("record"), records}, {QStringLiteral("select"), select}};
    return QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
}

QString letterOf(int drive) {
    return QStringLiteral("%1:").arg(QChar('A' + drive));
}

}  // namespace

/// Does what `work` does with a document that is there; answers a default for one that is gone.
template <typename Work>
auto JS_Mediator_FileDialog::onDocument(DOCKEY key, Work work) {
    DOC_Interface* doc = host().docManager().getDoc(key, 1);
    return doc != nullptr ? work(doc->storage()) : decltype(work(doc->storage()))();
}

QString JS_Mediator_FileDialog::getSDDrives() {
    return call(*this, TracedQuery, __func__, {}, [this] {
        constexpr int Letters = 26;
        m_driveNames.clear();
        const unsigned int mask = host().docManager().getSdDriveMask();
        QJsonArray records;
        for (int drive = 0; drive < Letters; ++drive) {
            if ((mask >> drive & 1U) != 0) {
                m_driveNames.insert(drive, letterOf(drive));
                records.append(QJsonObject{{QStringLiteral("recid"), records.size()}, {DriveName, letterOf(drive)}});
            }
        }
        int open = -1;
        const bool isOpen = host().docManager().getOpenSdDrive(open);
        return listText(records, isOpen ? m_driveNames.keys().indexOf(open) : -1);
    });
}

void JS_Mediator_FileDialog::selectSDDrive(int recid) {
    call(*this, Change, __func__, {{"recid", recid}}, [&] {
        const QList<int> drives = m_driveNames.keys();
        if (recid < 0 || recid >= drives.size()) {
            return;
        }
        ZebDocManager& docs = host().docManager();
        const int drive = drives.at(recid);
        int open = -1;
        if (docs.getOpenSdDrive(open) && open != drive) {
            const QString question = TextKey(
                "Multiple SD cards can not be opened at the same time. Are you sure you want to close all data of %1?");
            if (!userAgreesToClose(question, letterOf(open))) {
                return;
            }
            docs.closeSdDrive();
        }
        docs.prepareDrive(zeb::SdDriveKind);
        docs.openSdDrive(drive);
    });
}

bool JS_Mediator_FileDialog::userAgreesToClose(const QString& question, const QString& name) const {
    return host().confirmModal(host().translate(question).arg(name), host().getMainWindow(), {});
}

QString JS_Mediator_FileDialog::mediaText(int kind) const {
    const QList<zeb::Medium> media = host().docManager().media().getMedia(kind);
    QJsonArray records;
    for (const zeb::Medium& medium : media) {
        records.append(QJsonObject{{QStringLiteral("recid"), records.size()},
                                   {DriveName, medium.name},
                                   {QStringLiteral("drivetype"), medium.type},
                                   {QStringLiteral("driveno"), medium.drive},
                                   {QStringLiteral("slotno"), medium.slot}});
    }
    zeb::Medium open;
    const bool isOpen = host().docManager().media().getOpenMedium(kind, open);
    const auto found =
        std::find_if(media.begin(), media.end(), [&](const zeb::Medium& medium) { return isSame(medium, open); });
    return listText(records, isOpen && found != media.end() ? int(found - media.begin()) : -1);
}

QString JS_Mediator_FileDialog::getFDDrives() {
    return call(*this, TracedQuery, __func__, {}, [this] { return mediaText(zeb::QuikDrive); });
}

QString JS_Mediator_FileDialog::getCFDrives() {
    return call(*this, TracedQuery, __func__, {}, [this] { return mediaText(zeb::CFast); });
}

void JS_Mediator_FileDialog::selectFDDrive(int fdType, int driveNo, int slotNo, const QString& driveName) {
    call(*this, Change, __func__, {{"driveName", driveName}}, [&] {
        openMedium(zeb::QuikDrive, {fdType, driveNo, slotNo, driveName},
                   TextKey("Multiple QUIK Drives with USB connection can not be opened at the same time.Are you sure "
                           "you want to close all data of %1?"));
    });
}

void JS_Mediator_FileDialog::selectCFDrive(int cfType, int driveNo, int slotNo, const QString& driveName) {
    call(*this, Change, __func__, {{"driveName", driveName}}, [&] {
        openMedium(zeb::CFast, {cfType, driveNo, slotNo, driveName},
                   TextKey("Multiple CFast with USB connection can not be opened at the same time.Are you sure you "
                           "want to close all data of %1?"));
    });
}

void JS_Mediator_FileDialog::openMedium(int kind, const zeb::Medium& medium, const QString& question) {
    ZebMedia& media = host().docManager().media();
    if (media.isMediumLocked(kind, medium) && !media.unlockMedium(kind, medium)) {
        return;
    }
    zeb::Medium open;
    if (media.getOpenMedium(kind, open) && !isSame(open, medium)) {
        if (!userAgreesToClose(question, open.name)) {
            return;
        }
        media.closeMedium(kind);
    }
    media.openMedium(kind, medium);
}

bool JS_Mediator_FileDialog::canConvertDataName(DOCKEY docKey) {
    return call(*this, TracedQuery, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](const DOC_Storage& data) { return data.canConvertDataName(); }); });
}

bool JS_Mediator_FileDialog::canSavedCheck(DOCKEY docKey) {
    return call(*this, TracedQuery, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](const DOC_Storage& data) { return data.canSavedCheck(); }); });
}

void JS_Mediator_FileDialog::convertDataName(DOCKEY docKey, const QString& dataName, int sequence, bool fd) {
    call(*this, Change, __func__, {{"docKey", docKey}, {"dataName", dataName}},
         [&] { onDocument(docKey, [&](DOC_Storage& data) { data.convertDataName(dataName, sequence, fd); }); });
}

bool JS_Mediator_FileDialog::checkDeleteFile(DOCKEY docKey) {
    return call(*this, TracedQuery, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](const DOC_Storage& data) { return data.checkDeleteFile(); }); });
}

bool JS_Mediator_FileDialog::deleteFile(DOCKEY docKey) {
    return call(*this, Change, __func__, {{"docKey", docKey}},
                [&] { return onDocument(docKey, [](DOC_Storage& data) { return data.deleteFile(); }); });
}

/// With its name, if it is there.
zeb::Medium JS_Mediator_FileDialog::foundMedium(int kind, ulong type, ulong drive, ulong slot) const {
    const zeb::Medium wanted{int(type), int(drive), int(slot), {}};
    for (const zeb::Medium& medium : host().docManager().media().getMedia(kind)) {
        if (isSame(medium, wanted)) {
            return medium;
        }
    }
    return wanted;
}

/// In whatever slot.
zeb::Medium JS_Mediator_FileDialog::quikDrive(int type, int drive) const {
    for (const zeb::Medium& medium : host().docManager().media().getMedia(zeb::QuikDrive)) {
        if (medium.type == type && medium.drive == drive) {
            return medium;
        }
    }
    return {type, drive, 0, {}};
}

QString JS_Mediator_FileDialog::useRatio(int kind, ulong type, ulong drive, ulong slot) const {
    constexpr double Percent = 100;
    const zeb::MediumUse use = host().docManager().media().getMediumUse(kind, foundMedium(kind, type, drive, slot));
    const double ratio = use.capacity > 0 ? Percent * double(use.used) / double(use.capacity) : 0;
    return QString::number(ratio, 'f', 1) % QLatin1Char('%');
}

QString JS_Mediator_FileDialog::getFDUseRatio(ulong type, ulong driveNo, ulong slotNo) {
    return call(*this, TracedQuery, __func__, {}, [&] { return useRatio(zeb::QuikDrive, type, driveNo, slotNo); });
}

QString JS_Mediator_FileDialog::getCFUseRatio(ulong type, ulong driveNo, ulong slotNo) {
    return call(*this, TracedQuery, __func__, {}, [&] { return useRatio(zeb::CFast, type, driveNo, slotNo); });
}

QString JS_Mediator_FileDialog::getTotalWrittenAmount(ulong type, ulong driveNo, ulong slotNo) {
    return call(*this, TracedQuery, __func__, {}, [&] {
        const zeb::Medium medium = foundMedium(zeb::QuikDrive, type, driveNo, slotNo);
        return sizeText(host().docManager().media().getMediumUse(zeb::QuikDrive, medium).written);
    });
}

void JS_Mediator_FileDialog::format(int kind, ulong type, ulong drive, ulong slot) {
    if (host().docManager().media().formatMedium(kind, foundMedium(kind, type, drive, slot))) {
        host().info(host().translate(TextKey("Formatting is completed.")), nullptr);
    } else {
        host().alert(host().translate(TextKey("Formatting failed.")), nullptr);
    }
}

void JS_Mediator_FileDialog::formatQuikDrive(ulong type, ulong driveNo, ulong slotNo) {
    call(*this, Change, __func__, {{"driveNo", qulonglong(driveNo)}, {"slotNo", qulonglong(slotNo)}},
         [&] { format(zeb::QuikDrive, type, driveNo, slotNo); });
}

void JS_Mediator_FileDialog::formatCFast(ulong type, ulong driveNo, ulong slotNo) {
    call(*this, Change, __func__, {{"driveNo", qulonglong(driveNo)}, {"slotNo", qulonglong(slotNo)}},
         [&] { format(zeb::CFast, type, driveNo, slotNo); });
}

void JS_Mediator_FileDialog::setQuikDrivePassword(int fdType, int driveNo) {
    call(*this, Change, __func__, {{"driveNo", driveNo}}, [&] {
        const zeb::Medium medium = quikDrive(fdType, driveNo);
        const auto isSet = host().docManager().media().setMediumPassword(zeb::QuikDrive, medium);
        if (isSet == true) {
            host().warn(host().translate(TextKey("Password setting completed..")), nullptr);
        } else if (isSet == false) {
            host().alert(host().translate(TextKey("Password setting failed.")), nullptr);
        }
    });
}

bool JS_Mediator_FileDialog::existSetQuikDrivePassword(int fdType, int driveNo) {
    return call(*this, TracedQuery, __func__, {{"driveNo", driveNo}}, [&] {
        const zeb::Medium medium = quikDrive(fdType, driveNo);
        return host().docManager().media().hasMediumPassword(zeb::QuikDrive, medium);
    });
}

bool JS_Mediator_FileDialog::savedCheck(const QVariantList& list) {
    return call(*this, Action, __func__, {}, [&] {
        const QString family = nameFamily(fileType(m_kind == JobKind::Convert ? m_kind : JobKind::Export));
        const QString folder = chooseFolder(host(), host().getPrefString(family % QStringLiteral("dir")));
        if (folder.isEmpty()) {
            return false;
        }
        host().docManager().media().checkSaved(list, folder);
        return true;
    });
}
