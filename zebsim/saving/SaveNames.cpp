#include "SaveNames.h"

#include <QDir>
#include <QRegularExpression>

namespace {

constexpr int Digits = 5;
/// Bytes that a name may take: those that file systems give, less the longest ending.
constexpr int MostBytes = 200;

}  // namespace

QString fileNameOf(const QString& name) {
    static const QRegularExpression forbidden(QStringLiteral(R"re([\x{00}-\x{1f}\x{7f}/\\:*?"<>|])re"));
    // Dots in front hide a file, and blanks at the ends are not seen.
    static const QRegularExpression ends(QStringLiteral("^[.\\s]+|\\s+$"));
    QString clean = QString(name).replace(forbidden, QStringLiteral("_")).remove(ends);
    while (clean.toUtf8().size() > MostBytes) {
        clean.chop(clean.at(clean.size() - 1).isLowSurrogate() ? 2 : 1);
    }
    return clean.isEmpty() ? QStringLiteral("camera") : clean;
}

QString newSubfolder(const QString& folder, const QDateTime& time) {
    static const QRegularExpression made(QStringLiteral("^\\d{8}-\\d{6}$"));
    const bool isOfSave = made.match(QDir(folder).dirName()).hasMatch();
    return QDir(isOfSave ? QFileInfo(folder).path() : folder)
        .filePath(time.toString(QStringLiteral("yyyyMMdd-HHmmss")));
}

QString frameNumberText(qint64 number) {
    const QString digits = QString::number(qAbs(number)).rightJustified(Digits, QLatin1Char('0'));
    return number < 0 ? QString(QLatin1Char('-') % digits) : digits;
}
