#include "Journal.h"

#include <utility>

namespace {

Journal* current = nullptr;

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
    if (line.startsWith(QLatin1String("This plugin does not support"))) return;  // the offscreen platform's own
    Journal::note(levelName(level) % line);
}

}  // namespace

Journal::Journal() {
    current = this;
    qInstallMessageHandler(noteLogLine);
}

Journal::~Journal() {
    qInstallMessageHandler(nullptr);
    current = nullptr;
}

void Journal::note(const QString& entry) {
    if (current) current->m_entries.append(entry);
}

QStringList Journal::take() {
    return std::exchange(m_entries, {});
}
