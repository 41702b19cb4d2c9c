#include "MediumDocs.h"

#include "Camera.h"
#include "CameraBank.h"
#include "CameraError.h"
#include "FileDocs.h"
#include "HostContext.h"
#include "HostMessages.h"
#include "InformationFile.h"
#include "SimDocManager.h"
#include "TextKey.h"
#include "Translator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

QString sourceOf(const Camera& camera) {
    return camera.get(&CameraState::sourceFile);
}

QString driveName(const Medium& medium) {
    return medium.kind() == RigMedium::SdCard ? QString(QChar('A' + medium.place().drive) % QLatin1Char(':'))
                                              : medium.name();
}

bool areAllThere(const RecordingInformation& information, const QString& folder) {
    return std::all_of(information.files.begin(), information.files.end(),
                       [&folder](const QString& name) { return QFileInfo::exists(QDir(folder).filePath(name)); });
}

/// How much of a recording another one is, which was made of it if it is the same.
enum class Part { None, Some, All };
Part partOf(const RecordingInformation& whole, const RecordingInformation& saved) {
    const Recording& of = whole.recording;
    const Recording& part = saved.recording;
    if (whole.camera != saved.camera || whole.address != saved.address || of.partition != part.partition ||
        of.rate != part.rate || of.trigger != part.trigger || part.first > of.last || part.last < of.first) {
        return Part::None;
    }
    return part.first <= of.first && part.last >= of.last ? Part::All : Part::Some;
}

}  // namespace

void MediumDocs::open(const MediaShelf::Held& medium) {
    const FileDocs::Opened opened = m_host.docs.files().open(medium->recordings());
    int number = 0;
    for (const DOCKEY key : opened.keys) {
        const auto camera = m_host.cameras.hold(key);
        if (!camera) {
            continue;
        }
        const QDateTime date = readInformation(sourceOf(*camera)).date;
        zeb::MediumData data;
        data.fileName = QFileInfo(sourceOf(*camera)).fileName();
        data.cameraName = camera->name();
        data.deviceName = camera->model().name;
        data.driveName = driveName(*medium);
        data.serialNo = camera->address();
        data.dataNo = ++number;
        data.slot = medium->place().slot;
        data.date = date.toString(QStringLiteral("yyyy/MM/dd"));
        data.time = date.toString(QStringLiteral("HH:mm:ss"));
        data.isMarked = opened.incomplete.contains(key);
        m_docs.insert(key, {medium->kind(), data});
    }
    if (!opened.faults.isEmpty()) {
        const QString text = TextKey("Not all recordings of %1 could be opened as they were saved.");
        m_host.messages.tell(Message::Warn, m_host.translator.translate(text).arg(medium->name()), opened.faults);
    }
}

void MediumDocs::close(int kind) {
    DocKeyList closed;
    for (auto doc = m_docs.begin(); doc != m_docs.end(); ++doc) {
        if (doc->kind == kind) {
            closed.append(doc.key());
        }
    }
    for (const DOCKEY key : closed) {
        m_docs.remove(key);
    }
    m_host.docs.files().close(closed);
}

DocKeyList MediumDocs::keys() const {
    DocKeyList keys = m_docs.keys();
    // They may have been closed as files.
    const auto isGone = [this](DOCKEY key) { return m_host.cameras.find(key) == nullptr; };
    keys.erase(std::remove_if(keys.begin(), keys.end(), isGone), keys.end());
    const auto placeOf = [this](DOCKEY key) { return std::pair(m_docs[key].kind, m_docs[key].data.dataNo); };
    std::sort(keys.begin(), keys.end(),
              [&placeOf](DOCKEY left, DOCKEY right) { return placeOf(left) < placeOf(right); });
    return keys;
}

MediaShelf::Held MediumDocs::mediumOf(DOCKEY key) const {
    const auto doc = m_docs.find(key);
    return doc != m_docs.end() ? m_host.shelf.open(doc->kind) : nullptr;
}

std::optional<zeb::MediumData> MediumDocs::dataOf(const Camera& camera) const {
    const MediaShelf::Held medium = mediumOf(camera.key());
    if (!medium) {
        return std::nullopt;
    }
    zeb::MediumData data = m_docs[camera.key()].data;
    data.dataName = medium->dataName(sourceOf(camera));
    return data;
}

bool MediumDocs::isChangeable(const Camera& camera) const {
    const MediaShelf::Held medium = mediumOf(camera.key());
    return medium && !medium->isProtected();
}

void MediumDocs::setName(const Camera& camera, const QString& name, int sequence) {
    const MediaShelf::Held medium = mediumOf(camera.key());
    if (!medium) {
        throw CameraError(camera.name(), TextKey("it is on no medium"));
    }
    const QString text = sequence > 1 ? QStringLiteral("%1_%2").arg(name).arg(sequence) : name;
    medium->setDataName(sourceOf(camera), text);
}

bool MediumDocs::remove(const Camera& camera) {
    const MediaShelf::Held medium = mediumOf(camera.key());
    if (!medium || medium->isProtected()) {
        return false;
    }
    const QString path = sourceOf(camera);
    QStringList files;
    for (const QString& name : readInformation(path).files) {
        files.append(QDir(QFileInfo(path).path()).filePath(name));
    }
    const qint64 used = medium->use().used;
    const auto isLeft = [](const QString& file) {
        return (QFileInfo::exists(file) || QFileInfo(file).isSymLink()) && !QFile::remove(file);
    };
    const bool isGone = std::count_if(files.begin(), files.end(), isLeft) == 0 && QFile::remove(path);
    medium->noteErased(used - medium->use().used);
    if (isGone) {
        m_docs.remove(camera.key());
        m_host.docs.files().close({camera.key()});
    }
    return isGone;
}

void MediumDocs::checkSaved(const QVariantList& records, const QString& folder) const {
    QStringList lines;
    const QStringList saved = recordingsBelow(folder);
    for (const QVariant& value : records) {
        const QVariantMap record = value.toMap();
        const DocKeyList all = keys();
        const auto found = std::find_if(all.begin(), all.end(), [&](DOCKEY key) {
            const zeb::MediumData& data = m_docs[key].data;
            return data.dataNo == record.value(QStringLiteral("datano")).toInt() &&
                   data.serialNo == record.value(QStringLiteral("serialno")).toString();
        });
        lines.append(lineOf(found != all.end() ? *found : zeb::NoDocKey, record, saved));
    }
    const QString text = TextKey("Compared with what is saved in %1:");
    m_host.messages.tell(Message::Info, m_host.translator.translate(text).arg(QDir::toNativeSeparators(folder)), lines);
}

QString MediumDocs::lineOf(DOCKEY key, const QVariantMap& record, const QStringList& saved) const {
    const auto camera = m_host.cameras.hold(key);
    if (!camera) {
        const QString gone = TextKey("%1: the recording is not there any more");
        return m_host.translator.translate(gone).arg(record.value(QStringLiteral("datano")).toString());
    }
    const RecordingInformation whole = readInformation(sourceOf(*camera));
    Part best = Part::None;
    for (const QString& path : saved) {
        try {
            const RecordingInformation information = readInformation(path);
            if (areAllThere(information, QFileInfo(path).path())) {
                best = std::max(best, partOf(whole, information));
            }
        } catch (const std::exception&) {
            // It is no recording of this program.
        }
    }
    const QString text = best == Part::All    ? TextKey("%1: saved")
                         : best == Part::Some ? TextKey("%1: saved in part")
                                              : TextKey("%1: not saved");
    return m_host.translator.translate(text).arg(camera->name() % QStringLiteral(", ") % m_docs[key].data.fileName);
}
