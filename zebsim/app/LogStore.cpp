#include "LogStore.h"

#include "OneLine.h"

#include <QDateTime>

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

void LogStore::handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        earlier(type, context, text);
    }
    current->add(type, text);
}

void LogStore::add(QtMsgType type, const QString& text) {
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    const Line line{time % QLatin1Char(' ') % levelName(type) % QLatin1Char(' '), inOneLine(text)};
    const QString whole = line.prefix % line.text;
    m_lines.add(line);
    if (type != QtDebugMsg && type != QtInfoMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(whole));
    }
    Q_EMIT added(whole);
}

QStringList LogStore::since(quint64 mark) const {
    QStringList texts;
    for (const Line& line : m_lines.since(mark)) {
        texts << line.text;
    }
    return texts;
}

QStringList LogStore::prefixed() const {
    QStringList lines;
    for (const Line& line : m_lines.since(0)) {
        lines << line.prefix % line.text;
    }
    return lines;
}
