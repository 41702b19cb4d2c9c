#include "SettingsRoundTrip.h"

#include "JsonError.h"
#include "SettingsReader.h"
#include "SettingsWriter.h"

#include <QDebug>

#include <algorithm>

namespace {

bool isSame(const HeadSettings& one, const HeadSettings& other) {
    return one.address == other.address && one.head == other.head && one.settings == other.settings;
}

}  // namespace

QString faultOfSettings(const QByteArray& bytes) {
    QList<HeadSettings> read;
    try {
        read = readSettingsText(QStringLiteral("x"), bytes);
    } catch (const JsonError& refusal) {
        const QString text = QString::fromUtf8(refusal.what());
        return text.startsWith(QStringLiteral("x: line ")) ? QString() : QString(QStringLiteral("no place: ") % text);
    }
    const QByteArray written = writeSettings(read);
    const QList<HeadSettings> again = readSettingsText(QStringLiteral("x"), written);
    if (std::equal(read.begin(), read.end(), again.begin(), again.end(), isSame)) {
        return {};
    }
    QString fault;
    QDebug(&fault) << "came back otherwise:" << written;
    return fault;
}
