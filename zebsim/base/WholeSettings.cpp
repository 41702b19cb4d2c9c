#include "WholeSettings.h"

#include <QEvent>
#include <QFile>
#include <QtDebug>

#include <filesystem>
#include <utility>

WholeSettings::WholeSettings(const QString& path) : QSettings(path, QSettings::IniFormat) {
    setIniCodec("UTF-8");
}

WholeSettings::~WholeSettings() {
    syncWhole();
}

bool WholeSettings::event(QEvent* event) {
    if (event->type() != QEvent::UpdateRequest) {
        return QSettings::event(event);
    }
    syncWhole();
    return true;
}

void WholeSettings::syncWhole() {
    const std::filesystem::path file(fileName().toStdU16String());
    std::filesystem::path before = file;
    before += ".before";
    std::error_code failure;
    std::filesystem::remove(before, failure);
    // A second name costs no room, which a copy would.
    std::filesystem::create_hard_link(file, before, failure);
    const bool isKept = !failure;
    sync();
    const bool isCut = !isOnDisk();
    if (isCut && isKept) {
        std::filesystem::rename(before, file, failure);
    }
    std::filesystem::remove(before, failure);
    // The status stays as it is once something has failed.
    if (isCut || (status() == AccessError && !std::exchange(m_isTold, true))) {
        qCritical() << "The preferences can't be written:" << fileName();
    }
}

/// Each key has a line of its own. Settings that were opened anew would show what is still in memory.
bool WholeSettings::isOnDisk() const {
    QFile file(fileName());
    if (!file.open(QIODevice::ReadOnly)) {
        return allKeys().isEmpty();
    }
    int keys = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (line.size() > 1 && line.endsWith('\n') && !line.startsWith('[')) {
            ++keys;
        }
    }
    return keys >= allKeys().size();
}
