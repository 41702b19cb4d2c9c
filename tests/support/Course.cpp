#include "Course.h"

#include <utility>

namespace {

Course* current = nullptr;

QString levelName(QtMsgType level) {
    switch (level) {
        case QtDebugMsg:
            return QStringLiteral("debug: ");
        case QtInfoMsg:
            return QStringLiteral("info: ");
        case QtWarningMsg:
            return QStringLiteral("warning: ");
        default:
            return QStringLiteral("critical: ");
    }
}

void noteLogLine(QtMsgType level, const QMessageLogContext&, const QString& line) {
    if (line.startsWith(QLatin1String("This plugin does not support"))) {
        return;  // the offscreen platform's own
    }
    Course::note(levelName(level) % line);
}

}  // namespace

Course::Course() {
    current = this;
    qInstallMessageHandler(noteLogLine);
}

Course::~Course() {
    qInstallMessageHandler(nullptr);
    current = nullptr;
}

void Course::note(const QString& entry) {
    if (current) {
        const QMutexLocker lock(&current->m_mutex);
        current->m_entries.append(entry);
    }
}

QStringList Course::take() {
    const QMutexLocker lock(&m_mutex);
    return std::exchange(m_entries, {});
}
