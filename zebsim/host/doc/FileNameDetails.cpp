#include "FileNameDetails.h"

#include "NumberText.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

/// A file system takes 255 in all.
constexpr int MostBytes = 150;

}  // namespace

QString nameInFiles(QString name) {
    static const QRegularExpression control(QStringLiteral(R"re([\x{00}-\x{1f}\x{7f}-\x{9f}])re"));
    static const QRegularExpression ends(QStringLiteral("^[.\\s]+|[.\\s]+$"));
    name.remove(ends).replace(control, QStringLiteral("_"));
    while (name.toUtf8().size() > MostBytes) {
        name.chop(name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
    }
    return name;
}

zeb::FileNameDetails fileNameDetails(const std::function<QVariant(const QString&)>& pref, int type, bool isFileMode,
                                     const NamedCamera& camera, int session) {
    const QString key = nameFamily(type) % QStringLiteral("filename");
    const auto option = [&](const char* suffix) { return pref(key % QLatin1String(suffix)); };
    zeb::FileNameDetails details;
    if (!option("adddetail").toBool()) {
        return details;
    }
    const NumberDigits digits = digitsFor(pref, fileNameSlot(type), isFileMode, camera.counts);
    QStringList texts;
    const QStringList pieces = option("adddetails").toString().split(QLatin1Char(','));
    for (const QString& entry : pieces) {
        const QString piece = entry.trimmed();
        if (piece == QLatin1String("name")) {
            texts << nameInFiles(camera.name);
        } else if (piece == QLatin1String("text")) {
            texts << option("addtextvalue").toString();
        } else if (piece == QLatin1String("number") && option("addnumber").toBool()) {
            texts << numberText(camera.number, camera.head, session, digits.camera, digits.head, digits.session);
            details.hasSession = digits.session >= 1;
        }
    }
    texts.removeAll(QString());
    details.text = texts.join(option("adddetailsconnect").toString());
    return details;
}
