#include "TargetPaths.h"

#include "DateText.h"
#include "FileNameRules.h"
#include "NameFamilies.h"
#include "NameSource.h"
#include "PairList.h"
#include "TextKey.h"
#include "UTL_Exception.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace {

/// Directories that one composition names in the log when it passes them over.
constexpr int MostNoted = 100;
constexpr int LongestPath = 245;

bool isOneOf(int type, std::initializer_list<int> types) {
    return std::find(types.begin(), types.end(), type) != types.end();
}

bool isUnnamed(int type) {
    return isOneOf(type, {zeb::UnnamedImageFile, zeb::OtherUnnamedImageFile, zeb::UnnamedConvertedFile,
                          zeb::UnnamedReportFile, zeb::UnnamedLayoutFile});
}

bool isConversion(int type) {
    return nameFamily(type) == nameFamily(zeb::ConvertedFile);
}

QString joined(const QString& name, const QString& piece) {
    const QString between = name.isEmpty() || piece.isEmpty() ? "" : "_";
    return name + between + piece;
}

QString withSlash(const QString& folder) {
    return folder.isEmpty() || folder.endsWith('/') ? folder : folder + '/';
}

/// The preferences of a type.
class FamilyPrefs {
public:
    FamilyPrefs(const NameSource& source, int type) : m_source(source), m_family(nameFamily(type)) {}

    bool flag(const QString& key) const { return value(key).toBool(); }
    QString text(const QString& key) const { return value(key).toString(); }
    QVariant value(const QString& key) const { return m_source.pref(m_family + key); }

private:
    const NameSource& m_source;
    QString m_family;
};

/// The folder of a camera that has one of its own.
std::optional<QString> cameraFolder(const NameSource& source, const NamedDocument& document) {
    const QString devices = source.pref("export/multipathdevicelist").toString();
    // A camera is not asked for what nobody needs.
    const auto key = devices.isEmpty() ? std::nullopt : valueOf(readPairs(devices), document.address());
    return key ? valueOf(readPairs(source.pref("export/multipathlist").toString()), *key) : key;
}

/// Whether it writes a file with information about the images, which has a name of its own.
bool isInformational(const NameSource& source, int type) {
    const FamilyPrefs prefs(source, type);
    return source.pref("export/media").toString() == "file" &&
           (isConversion(type) || nameFamily(type) == nameFamily(zeb::ImageFile)) &&
           source.pref("save/SaveInfFile").toBool() && prefs.flag("saveinf");
}

QString customText(const QList<QVariantMap>& items, bool includeUnit) {
    QString text;
    for (const QVariantMap& item : items) {
        if (item.value("usefilename") == "on") {
            text = joined(text, item.value("value").toString());
            text = joined(text, includeUnit ? item.value("unit").toString() : QString());
        }
    }
    return text;
}

/// The names of one document's files, which share the rounds that a search for free ones may take.
class Composition {
public:
    /// Files go into `substitute` if it is not empty, whatever their own folder.
    Composition(const NameSource& source, const NamedDocument* document, const QDateTime& time, QString substitute = {})
        : m_source(source), m_document(document), m_time(time), m_substitute(std::move(substitute)) {}
    ~Composition() {
        if (m_passed > MostNoted) {
            m_source.noteTaken(QStringLiteral("%1 more").arg(m_passed - MostNoted));
        }
    }
    Q_DISABLE_COPY(Composition)

    QString fileName(int type, PARTITIONNUMBER partition, bool withDetails);
    QString groupDir(int type, const QString& name);
    QString subDir(int type, const QString& name);

private:
    [[noreturn]] static void fail() { throw UTL_Exception(TextKey("Invalid filename.")); }
    void endRound();
    NumberDigits digits(int slot) const;
    QString informationalName() const;
    QString baseName(int type, PARTITIONNUMBER partition, bool withDetails);
    QString customName(int type, const QString& base) const;
    QString withTime(const FamilyPrefs& prefs, const QString& kind, const QString& name) const;
    QString directory(int type, int slot, const QString& kind, const QString& name);
    QString numbered(int type, int slot, const QString& base);
    bool isFree(int type, const QString& base, const QString& name);

    const NameSource& m_source;
    const NamedDocument* m_document;
    const QDateTime& m_time;
    const QString m_substitute;
    int m_rounds = 0;
    /// Directories that are there or taken.
    int m_passed = 0;
    /// Directories that have a number by now, by slot and name.
    QHash<QPair<int, QString>, QString> m_numbered;
};

void Composition::endRound() {
    if (++m_rounds > m_source.mostRounds()) {
        fail();
    }
}

NumberDigits Composition::digits(int slot) const {
    const auto pref = [this](const QString& key) { return m_source.pref(key); };
    std::optional<DeviceCounts> counts;
    // A camera is not asked for what nobody needs.
    if (m_document && pref(slotKey(slot) % "addnumberformat") == "auto") {
        counts = {m_document->deviceCount(), m_document->headCount()};
    }
    return digitsFor(pref, slot, m_source.isFileMode(), counts);
}

QString Composition::informationalName() const {
    QString name = m_source.pref("export/inf_testno").toString();
    const QList<QVariantMap> items = name.isEmpty() && m_document ? m_document->customInfo() : QList<QVariantMap>();
    for (const QVariantMap& item : items) {
        if (item.value("name") == "TestNo") {
            return item.value("value").toString();
        }
    }
    return name;
}

QString Composition::customName(int type, const QString& base) const {
    const FamilyPrefs prefs(m_source, type);
    std::unique_ptr<NamedDocument> target;
    const qint64 key = prefs.value("filenameusecustomfromtargetkey").toLongLong();
    if (prefs.flag("filenameusecustomfromtarget") && key >= 0) {
        target = m_source.document(static_cast<DOCKEY>(key));
    }
    const NamedDocument* from = target ? target.get() : m_document;
    return from ? sanitised(customText(from->customInfo(), prefs.flag("filenameusecustomincludeunit")), "_") : base;
}

QString Composition::baseName(int type, PARTITIONNUMBER partition, bool withDetails) {
    const FamilyPrefs prefs(m_source, type);
    QString base = prefs.text("filename");
    if (prefs.flag("filenameasoriginal") && m_document) {
        const bool isUnsaved = isConversion(type) && m_document->isMemoryData() && m_source.isMemoryMode();
        base = isUnsaved ? fileName(zeb::ImageFile, partition, withDetails) : m_document->originalName();
    }
    if (!m_source.isFileMode() && prefs.flag("filenameaspartitionname")) {
        base = m_document ? sanitised(m_document->partitionName(partition), "_") : QString();
    }
    return prefs.flag("filenameusecustom") ? customName(type, base) : base;
}

QString Composition::fileName(int type, PARTITIONNUMBER partition, bool withDetails) {
    if (isInformational(m_source, type)) {
        return informationalName();
    }
    const QString base = baseName(type, partition, withDetails);
    if (!withDetails) {
        return base;
    }
    const FamilyPrefs prefs(m_source, type);
    const bool countsSessions = digits(fileNameSlot(type)).session > 0;
    QString last;
    for (int session = 1;; ++session) {
        const auto details =
            m_document ? m_document->fileNameDetails(type, partition, session, m_time) : zeb::FileNameDetails();
        const QString name = withTime(prefs, "filename", joined(base, sanitised(details.text, "_")));
        if (name.isEmpty() || !countsSessions || !details.hasSession || isFree(type, base, name)) {
            return name;
        }
        if (name == last) {
            fail();
        }
        last = name;
        endRound();
    }
}

bool Composition::isFree(int type, const QString& base, const QString& name) {
    QString folder = rootFolder(m_source, type, m_document);
    const FamilyPrefs prefs(m_source, type);
    folder += withSlash(groupDir(type, prefs.flag("groupdirasfilenameincludeoption") ? name : base));
    folder += withSlash(subDir(type, prefs.flag("subdirasfilenameincludeoption") ? name : base));
    const auto isFreeIn = [&](const QString& path) {
        return !m_source.isPathTaken(path + name) && !m_source.hasFile(path, name);
    };
    return isFreeIn(folder) && (m_substitute.isEmpty() || isFreeIn(withSlash(m_substitute)));
}

QString Composition::groupDir(int type, const QString& name) {
    if (groupDirSlot(type) < 0 || !FamilyPrefs(m_source, type).flag("groupdir")) {
        return {};
    }
    const auto fixed = m_source.fixedGroupDir();
    return fixed ? *fixed : directory(type, groupDirSlot(type), "groupdir", name);
}

QString Composition::subDir(int type, const QString& name) {
    return FamilyPrefs(m_source, type).flag("subdir") ? directory(type, subDirSlot(type), "subdir", name) : QString();
}

/// `kind` is what the keys of its preferences begin with.
QString Composition::directory(int type, int slot, const QString& kind, const QString& name) {
    const FamilyPrefs prefs(m_source, type);
    const QString base = prefs.flag(kind + "asfilename") ? name : prefs.text(kind + "name");
    return withTime(prefs, kind, prefs.flag(kind + "addnumber") ? numbered(type, slot, base) : base);
}

QString Composition::numbered(int type, int slot, const QString& base) {
    QString& directory = m_numbered[{slot, base}];
    if (!directory.isEmpty()) {
        return directory;
    }
    const NumberDigits wide = digits(slot);
    const bool isCamera = m_document && !m_source.isFileMode();
    const int camera = isCamera ? m_document->deviceNumber() + 1 : 1;
    const int head = isCamera ? m_document->headNumber() : 1;
    const QString root = rootFolder(m_source, type, m_document);
    for (int session = 1;; ++session) {
        directory = joined(base, numberText(camera, head, session, wide.camera, wide.head, wide.session));
        const QString path = root + directory;
        if (wide.session < 1 || (!m_source.folderExists(path) && !m_source.isFolderTaken(path))) {
            return directory;
        }
        if (++m_passed <= MostNoted) {
            m_source.noteTaken(path);
        }
        endRound();
    }
}

QString Composition::withTime(const FamilyPrefs& prefs, const QString& kind, const QString& name) const {
    return prefs.flag(kind + "addtime") ? joined(name, dateText(m_time, prefs.text(kind + "addtimeformat"))) : name;
}

/// What `name` is called with round brackets in a report that is written so.
QString rounded(QString name, int type, int mode) {
    return type == zeb::ReportFile && mode == 1 ? name.replace('[', '(').replace(']', ')') : name;
}

void checkLengths(const NameSource& source, int type, const QString& folder, QString path) {
    const FamilyPrefs prefs(source, type);
    const bool hasThumbnail = isOneOf(type, {zeb::ImageFile, zeb::OtherImageFile, zeb::ConvertedFile}) &&
                              !isInformational(source, type) && prefs.flag("savethumbnail");
    path += hasThumbnail ? prefs.text("savethumbnailaddtextvalue") : QString();
    if (folder.size() > LongestPath || (hasThumbnail && path.size() > LongestPath)) {
        throw UTL_Exception(TextKey("The path of the target is too long."));
    }
}

QList<PARTITIONNUMBER> partitionsOf(int type, const NamedDocument* document) {
    const auto partitions = document ? document->partitions() : QList<PARTITIONNUMBER>{1};
    const bool isLayout = nameFamily(type) == nameFamily(zeb::LayoutFile);
    return isLayout ? QList<PARTITIONNUMBER>{partitions.value(0, 1)} : partitions;
}

}  // namespace

void composeTargets(NameSource& source, int type, const NamedDocument* document, bool replaceRoot,
                    const QDateTime& time, int mode, TargetPaths& out) {
    const FamilyPrefs prefs(source, type);
    const QString substitute = replaceRoot ? source.substituteFolder().value_or(QString()) : QString();
    Composition composition(source, document, time, substitute);
    const bool mayBeEmpty = isUnnamed(type) || source.pref("save/EnableBlankFilename").toBool();
    const QString root = rootFolder(source, type, document);
    for (const PARTITIONNUMBER partition : partitionsOf(type, document)) {
        const QString base = rounded(composition.fileName(type, partition, false), type, mode);
        const QString name = rounded(composition.fileName(type, partition, true), type, mode);
        QString folder = root;
        const QString group = composition.groupDir(type, prefs.flag("groupdirasfilenameincludeoption") ? name : base);
        if (!group.isEmpty()) {
            out.groups[partition] = group;
            source.setLastGroupDir(group);
            folder += withSlash(group);
        }
        const QString sub = composition.subDir(type, prefs.flag("subdirasfilenameincludeoption") ? name : base);
        out.subs[partition] = rounded(sub, type, mode);
        folder += withSlash(out.subs[partition]);
        if (base.isEmpty() && !mayBeEmpty) {
            throw UTL_Exception(TextKey("Invalid filename."));
        }
        if (!substitute.isEmpty()) {
            folder = withSlash(substitute);
        }
        out.folders[partition] = folder;
        out.paths[partition] = folder + name;
        if (type != zeb::ReportFile) {
            source.setLastFolder(folder);
            source.setLastPath(folder + name);
            checkLengths(source, type, folder, folder + name);
        }
    }
}

QString rootFolder(const NameSource& source, int type, const NamedDocument* document) {
    const FamilyPrefs prefs(source, type);
    const bool isFileMode = source.isFileMode();
    QString folder = prefs.text("dir");
    if (!isFileMode && isOneOf(type, {zeb::ImageFile, zeb::OtherImageFile}) && document &&
        !source.pref("export/singlepath").toBool()) {
        folder = cameraFolder(source, *document).value_or(folder);
    }
    if ((isConversion(type) || isFileMode) && prefs.flag("dirasoriginal")) {
        const QString file = document ? document->sourceFile() : QString();
        folder = file.isEmpty() ? QString() : QFileInfo(file).absolutePath();
    }
    return withSlash(folder);
}

QString fileName(const NameSource& source, int type, const NamedDocument* document, PARTITIONNUMBER partition,
                 bool withDetails, const QDateTime& time) {
    return Composition(source, document, time).fileName(type, partition, withDetails);
}

QString groupDir(const NameSource& source, int type, const NamedDocument* document, const QString& name,
                 const QDateTime& time) {
    return Composition(source, document, time).groupDir(type, name);
}

QString subDir(const NameSource& source, int type, const NamedDocument* document, const QString& name,
               const QDateTime& time) {
    return Composition(source, document, time).subDir(type, name);
}
