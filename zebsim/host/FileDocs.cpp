#include "FileDocs.h"

#include "Camera.h"
#include "CameraBank.h"
#include "FileRecording.h"
#include "HostContext.h"
#include "HostMessages.h"
#include "InformationReader.h"
#include "JsonError.h"
#include "Notices.h"
#include "SimAppStatus.h"
#include "SimDocManager.h"
#include "SimRecorder.h"
#include "TargetDisk.h"
#include "TextKey.h"
#include "Translator.h"
#include "UpdateCycle.h"

#include <QDir>
#include <QFileInfo>
#include <QtDebug>

QHash<QString, DOCKEY> FileDocs::present() const {
    QHash<QString, DOCKEY> keys;
    for (const Camera* file : m_host.cameras.files()) {
        keys.insert(file->get(&CameraState::sourceFile), file->key());
    }
    return keys;
}

FileDocs::Opened FileDocs::open(const QStringList& paths, bool isHidden) {
    Opened opened;
    RealDisk disk;
    QHash<QString, DOCKEY> there = isHidden ? QHash<QString, DOCKEY>() : present();
    for (const QString& path : paths) {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        const QString file = canonical.isEmpty() ? path : canonical;
        try {
            if (there.contains(file)) {
                checkUnchanged(there[file], file);
                opened.keys.append(there[file]);
            } else {
                openOne(file, disk, isHidden, opened);
                there.insert(file, opened.keys.last());
            }
        } catch (const JsonError& e) {
            opened.faults.append(QString::fromUtf8(e.what()));
        }
    }
    return opened;
}

void FileDocs::openOne(const QString& path, TargetDisk& disk, bool isHidden, Opened& opened) {
    const FileRecording recording = FileRecording::open(path, disk);
    const DOCKEY key = m_host.cameras.addFile(recording.device, !isHidden);
    m_told.insert(key, recording.told);
    opened.keys.append(key);
    if (recording.missing > 0) {
        opened.incomplete.append(key);
        const QString text = m_host.translator.translate(TextKey("%1: %2 of its files are missing"));
        opened.faults.append(text.arg(QDir::toNativeSeparators(path), QString::number(recording.missing)));
    }
}

void FileDocs::checkUnchanged(DOCKEY key, const QString& path) const {
    if (readInformation(path).toJson() != m_told[key].toJson()) {
        const QString text = TextKey("%1 has changed since it was opened. Close it and open it again.");
        throw JsonError(m_host.translator.translate(text).arg(QDir::toNativeSeparators(path)));
    }
}

void FileDocs::openAndShow(const QStringList& paths) {
    const Opened opened = open(paths);
    qInfo() << "Recordings were opened:" << opened.keys.size() << "of" << paths.size();
    if (!opened.keys.isEmpty() && m_host.recorder.isUnderWay()) {
        m_host.notices.add(Message::Info, TextKey("The recordings are open; file mode shows them."));
    } else if (!opened.keys.isEmpty()) {
        m_host.appStatus.enterMode(zeb::FileMode);
        if (m_host.docs.currentKey() == zeb::NoDocKey) {
            m_host.docs.selectOnly({opened.keys.first()});
        }
    }
    m_host.updates.request();
    if (!opened.faults.isEmpty()) {
        const QString text = TextKey("Not all recordings could be opened as they were saved.");
        m_host.messages.tell(Message::Warn, m_host.translator.translate(text), opened.faults);
    }
}

void FileDocs::close(const DocKeyList& keys) {
    m_host.cameras.removeFiles(keys);
    for (const DOCKEY key : keys) {
        m_told.remove(key);
    }
    m_host.updates.request();
}

void FileDocs::closeAll() {
    DocKeyList keys;
    for (const Camera* file : m_host.cameras.files()) {
        keys.append(file->key());
    }
    close(keys);
}
