#include "CameraNameList.h"

#include "FileNameRules.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <stdexcept>

namespace {

constexpr qint64 MostBytes = 64LL * 1024 * 1024;
constexpr int LongestName = 1024;
/// Of lines without a comma, each a line of the log.
constexpr int MostWarnings = 100;
/// Of all names, each with its category: so many make a page that still answers.
constexpr qint64 MostLetters = 64LL * 1024 * 1024;
constexpr int Utf8Mib = 106;

QString cut(const QString& text) {
    const bool isBetweenSurrogates = text.size() > LongestName && text.at(LongestName).isLowSurrogate();
    return text.left(isBetweenSurrogates ? LongestName - 1 : LongestName);
}

/// Hardly any text in Shift-JIS happens to be UTF-8, but much in UTF-8 would pass for Shift-JIS.
QString decoded(const QByteArray& bytes) {
    QTextCodec* const utf8 = QTextCodec::codecForMib(Utf8Mib);
    if (QTextCodec* marked = QTextCodec::codecForUtfText(bytes, nullptr)) {
        return marked->toUnicode(bytes);
    }
    QTextCodec::ConverterState state;
    const QString text = utf8->toUnicode(bytes.constData(), bytes.size(), &state);
    QTextCodec* const shiftJis = QTextCodec::codecForName("Shift-JIS");
    const bool isUtf8 = state.invalidChars == 0 && state.remainingChars == 0;
    return isUtf8 || shiftJis == nullptr ? text : shiftJis->toUnicode(bytes);
}

QStringList linesOf(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n');
    if (text.endsWith('\n')) {
        text.chop(1);
    } else if (text.isEmpty()) {
        return {};
    }
    return text.split('\n');
}

QStringList namesOf(const QStringList& fields) {
    QStringList names;
    for (const QString& field : fields) {
        // What only dots are after the blanks is no name either.
        const QString name = cut(sanitised(sanitised(field, {}).trimmed(), {}));
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    return names;
}

CameraNames listOf(const QString& text) {
    CameraNames list;
    int warnings = 0;
    qint64 letters = 0;
    for (const QString& line : linesOf(text)) {
        QStringList fields = line.split(',');
        if (fields.size() > 1) {
            const QString category = cut(fields.takeFirst().trimmed());
            const QStringList names = namesOf(fields);
            for (const QString& name : names) {
                letters += category.size() + name.size();
            }
            if (letters > MostLetters) {
                throw std::length_error("there are too many names");
            }
            list[category.isEmpty() ? QString(DefaultCategory) : category] += names;
        } else if (++warnings <= MostWarnings) {
            qWarning() << "[only category]" << cut(line);
        }
    }
    if (warnings > MostWarnings) {
        qWarning() << "[only category]" << warnings - MostWarnings << "lines more";
    }
    return list;
}

std::nullopt_t failed(const char* what, const QString& path) {
    qCritical() << QString(QLatin1String(what) % QLatin1String(" [") % path % QLatin1Char(']'));
    return std::nullopt;
}

}  // namespace

std::optional<CameraNames> readCameraNames(const QString& path) {
    if (!QFileInfo::exists(path)) {
        return {};
    }
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return failed("file open failed.", path);
    }
    try {
        const QByteArray bytes = file.read(MostBytes + 1);
        if (file.error() != QFile::NoError) {
            throw std::runtime_error(file.errorString().toStdString());
        }
        if (bytes.size() > MostBytes) {
            throw std::length_error("it is larger than 64 MiB");
        }
        return listOf(decoded(bytes));
    } catch (const std::exception& e) {
        qCritical() << "A list of camera names can't be read:" << e.what();
        return failed("file error occurred.", path);
    }
}
