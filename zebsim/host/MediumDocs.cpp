#include "MediumDocs.h"

#include "Camera.h"
#include "CameraBank.h"
#include "CameraError.h"
#include "FileDocs.h"
#include "HostContext.h"
#include "HostMessages.h"
#include "SavedCheck.h"
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

}  // namespace

void MediumDocs::open(const MediaShelf::Held& medium) {
    const FileDocs::Opened opened = m_host.docs.files().open(medium->recordings());
    // Those of other media that are open have theirs.
    int number = 0;
    for (const Doc& doc : qAsConst(m_docs)) {
        number = std::max(number, doc.data.dataNo);
    }
    for (const DOCKEY key : opened.keys) {
        const auto camera = m_host.cameras.hold(key);
        if (!camera) {
            continue;
        }
        const QDateTime date = m_host.docs.files().told(key).date;
        zeb::MediumData data;
        data.fileName = QFileInfo(sourceOf(*camera)).fileName();
        data.cameraName = camera->name();
        data.deviceName = camera->model().name;
        data.driveName = medium->driveName();
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
    const QDir folder = QFileInfo(path).dir();
    if (folder.canonicalPath() != folder.path()) {
        throw CameraError(camera.name(), TextKey("another folder has taken the place of the one with its files"));
    }
    const DOCKEY key = camera.key();
    m_host.docs.files().checkUnchanged(key, path);
    const qint64 used = medium->use().used;
    const QStringList files = m_host.docs.files().told(key).files;
    const auto isLeft = [&folder](const QString& name) {
        const QString file = folder.filePath(name);
        return (QFileInfo::exists(file) || QFileInfo(file).isSymLink()) && !QFile::remove(file);
    };
    const bool isGone = std::count_if(files.begin(), files.end(), isLeft) == 0 && QFile::remove(path);
    if (isGone) {
        m_docs.remove(key);
        m_host.docs.files().close({key});
    }
    medium->noteErased(used - medium->use().used);
    return isGone;
}

void MediumDocs::checkSaved(const QVariantList& records, const QString& folder) const {
    QStringList lines;
    const SavedCheck check(folder);
    const DocKeyList all = keys();
    for (const QVariant& value : records) {
        const QVariantMap record = value.toMap();
        const auto found = std::find_if(all.begin(), all.end(), [&](DOCKEY key) {
            const zeb::MediumData& data = m_docs[key].data;
            return data.dataNo == record.value(QStringLiteral("datano")).toInt() &&
                   data.serialNo == record.value(QStringLiteral("serialno")).toString();
        });
        lines.append(lineOf(found != all.end() ? *found : zeb::NoDocKey, record, check));
    }
    const QString text = TextKey("Compared with what is saved in %1:");
    m_host.messages.tell(Message::Info, m_host.translator.translate(text).arg(QDir::toNativeSeparators(folder)), lines);
}

QString MediumDocs::lineOf(DOCKEY key, const QVariantMap& record, const SavedCheck& check) const {
    const MediaShelf::Held medium = mediumOf(key);
    const auto camera = m_host.cameras.hold(key);
    if (!camera || !medium) {
        const QString gone = TextKey("%1: the recording is not there any more");
        return m_host.translator.translate(gone).arg(record.value(QStringLiteral("datano")).toString());
    }
    const RecordingInformation told = m_host.docs.files().told(key);
    const SavedCheck::Result result = check.of(told, *medium, SavedCheck::WithoutLoss);
    const QString name = camera->name() % QStringLiteral(", ") % m_docs[key].data.fileName;
    if (!result.isWhole() && check.of(told, *medium, SavedCheck::All).isWhole()) {
        return m_host.translator.translate(TextKey("%1: saved whole only with loss of quality")).arg(name);
    }
    if (result.saved > 0 && !result.isWhole()) {
        const QString part = TextKey("%1: saved in part, without the frames %2");
        return m_host.translator.translate(part).arg(name, result.missing());
    }
    const QString text = result.isWhole()    ? TextKey("%1: saved")
                         : result.isOnMedium ? TextKey("%1: saved nowhere but on its medium")
                                             : TextKey("%1: not saved");
    return m_host.translator.translate(text).arg(name);
}
