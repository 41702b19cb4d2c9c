#include "LogStore.h"

#include <QDateTime>

#include <algorithm>
#include <cstdio>

namespace {

LogStore* current = nullptr;
QtMessageHandler earlier = nullptr;

QLatin1String levelName(QtMsgType type) {
    switch (type) {
        case QtDebugMsg:
            return QLatin1String("DEBUG");
        case QtInfoMsg:
            return QLatin1String("INFO");
        case QtWarningMsg:
            return QLatin1String("WARN");
        case QtCriticalMsg:
        case QtFatalMsg:
            break;
    }
    return QLatin1String("ERROR");
}

}  // namespace

LogStore::LogStore() {
    current = this;
    earlier = qInstallMessageHandler(&LogStore::handle);
}

LogStore::~LogStore() {
    qInstallMessageHandler(earlier);
    current = nullptr;
}

quint64 LogStore::count() const {
    const std::lock_guard lock(m_mutex);
    return m_count;
}

QStringList LogStore::since(quint64 mark) const {
    const std::lock_guard lock(m_mutex);
    const quint64 wanted = std::min<quint64>(m_count - mark, m_lines.size());
    QStringList lines;
    for (auto line = m_lines.end() - static_cast<std::ptrdiff_t>(wanted); line != m_lines.end(); ++line) lines << *line;
    return lines;
}

void LogStore::handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) earlier(type, context, text);
    current->add(type, text);
}

void LogStore::add(QtMsgType type, const QString& text) {
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    const QString prefixed = time % QLatin1Char(' ') % levelName(type) % QLatin1Char(' ') % text;
    {
        const std::lock_guard lock(m_mutex);
        m_lines.push_back(text);
        ++m_count;
        if (m_lines.size() > Capacity) m_lines.pop_front();
    }
    if (type != QtDebugMsg && type != QtInfoMsg) std::fprintf(stderr, "%s\n", qPrintable(prefixed));
    Q_EMIT added(prefixed);
}
