#include "SettingTexts.h"

#include "TextKey.h"
#include "Translator.h"

#include <QHash>
#include <QStringList>

namespace {

/// Of a value, in letters.
constexpr int LongestValue = 60;

const QHash<QString, QString>& labelKeys() {
    static const QHash<QString, QString> keys{
        {QStringLiteral("resolution"), TextKey("Resolution")},
        {QStringLiteral("rate"), TextKey("Frame rate")},
        {QStringLiteral("shutter"), TextKey("Shutter speed")},
        {QStringLiteral("triggerMode"), TextKey("Trigger mode")},
        {QStringLiteral("triggerFrame"), TextKey("Frames from the trigger on")},
        {QStringLiteral("randomFrames"), TextKey("Frames of each recording")},
        {QStringLiteral("randomTimes"), TextKey("Number of recordings")},
        {QStringLiteral("randomCounted"), TextKey("Limit the number of recordings")},
        {QStringLiteral("recordArea"), TextKey("Record area")},
        {QStringLiteral("reduce"), TextKey("Live speed")},
        {QStringLiteral("lowLight"), TextKey("Lowlight")},
        {QStringLiteral("lowLightType"), TextKey("Low light type")},
        {QStringLiteral("resolutionLock"), TextKey("Locked Resolution")},
        {QStringLiteral("shutterSpeedLock"), TextKey("Locked Shutter Speed")},
        {QStringLiteral("ports"), TextKey("Signals at the ports")},
        {QStringLiteral("dualSlope"), TextKey("Dual slope shutter")},
        {QStringLiteral("autoExposure"), TextKey("Automatic exposure")},
        {QStringLiteral("irig"), TextKey("IRIG")},
        {QStringLiteral("irigStampAtEnd"), TextKey("IRIG Time Stamp at the end")},
        {QStringLiteral("irigSync"), TextKey("IRIG Sync")},
        {QStringLiteral("variable"), TextKey("Variable channel")},
        {QStringLiteral("binningPower"), TextKey("Binning")},
        {QStringLiteral("name"), TextKey("Camera name")},
        {QStringLiteral("comment"), TextKey("Comment")},
        {QStringLiteral("alias"), TextKey("Device alias")},
        {QStringLiteral("customInfo"), TextKey("Custom info")},
        {QStringLiteral("partitionNames"), TextKey("Names of the partitions")},
        {QStringLiteral("variableChannels"), TextKey("Variable channels")},
        {QStringLiteral("effectivePlugins"), TextKey("Image plug-ins that work")},
        {QStringLiteral("pluginValues"), TextKey("Numbers of the image plug-ins")},
        {QStringLiteral("lutCurve"), TextKey("Curve of brightness")},
        {QStringLiteral("frameSkipEnabled"), TextKey("Frame skip")},
        {QStringLiteral("frameSkipMode"), TextKey("Mode of the frame skip")},
        {QStringLiteral("frameSkip"), TextKey("Frames of the frame skip")},
        {QStringLiteral("scale"), TextKey("Scale")},
        {QStringLiteral("rotation"), TextKey("Rotation")},
        {QStringLiteral("flipHorizontal"), TextKey("Flipped horizontally")},
        {QStringLiteral("flipVertical"), TextKey("Flipped vertically")},
        {QStringLiteral("zoom"), TextKey("Zoom")},
    };
    return keys;
}

/// By `zeb::TriggerMode`.
const QStringList& triggerKeys() {
    static const QStringList keys{
        TextKey("Start Trg"),         TextKey("Center Trg"),           TextKey("End Trg"),
        TextKey("Random Trg"),        TextKey("Manual Trg"),           TextKey("Random Reset Trg"),
        TextKey("Random Center Trg"), TextKey("Random Manual Trg"),    TextKey("Twostage Trg"),
        TextKey("Twostage Half Trg"), TextKey("Twostage Quarter Trg"), TextKey("Twostage Oneeighth Trg"),
        TextKey("Reset Trg"),         TextKey("Rec on cmd Trg"),       TextKey("Random Loop Trg"),
        TextKey("None Error Trg")};
    return keys;
}

/// Items of the custom information as "Pressure 3.2 bar".
QString customInfoText(const QVariantList& items) {
    QStringList texts;
    for (const QVariant& item : items) {
        const QVariantMap members = item.toMap();
        QStringList words;
        for (const char* member : {"name", "value", "unit"}) {
            words << members.value(QLatin1String(member)).toString();
        }
        texts << words.join(QLatin1Char(' ')).trimmed();
    }
    return QLatin1Char('(') % texts.join(QStringLiteral(", ")) % QLatin1Char(')');
}

}  // namespace

QString SettingTexts::label(const QString& setting) const {
    return m_translator.translate(labelKeys().value(setting));
}

QString SettingTexts::labels(const QStringList& settings) const {
    QStringList texts;
    for (const QString& setting : settings) {
        texts << label(setting);
    }
    return texts.join(QStringLiteral(", "));
}

QString SettingTexts::value(const QString& setting, const QVariant& value) const {
    const QString text = whole(setting, value);
    return text.size() <= LongestValue ? text : QString(text.left(LongestValue) % QStringLiteral("…"));
}

QString SettingTexts::whole(const QString& setting, const QVariant& value) const {
    if (setting == QLatin1String("rate")) {
        return value.toString() % QLatin1Char(' ') % m_translator.translate(TextKey("fps"));
    }
    if (setting == QLatin1String("shutter")) {
        return QStringLiteral("1/%1 s").arg(value.toInt());
    }
    if (setting == QLatin1String("resolution")) {
        return value.toStringList().join(QStringLiteral(" x "));
    }
    if (setting == QLatin1String("triggerMode")) {
        return m_translator.translate(triggerKeys().value(value.toInt()));
    }
    if (setting == QLatin1String("customInfo")) {
        return customInfoText(value.toList());
    }
    return plain(value);
}

QString SettingTexts::plain(const QVariant& value) const {
    switch (static_cast<QMetaType::Type>(value.type())) {
        case QMetaType::Bool:
            return m_translator.translate(value.toBool() ? TextKey("ON") : TextKey("OFF"));
        case QMetaType::QString:
            return QLatin1Char('"') % value.toString() % QLatin1Char('"');
        case QMetaType::QVariantMap: {
            QStringList members;
            const QVariantMap map = value.toMap();
            for (auto member = map.begin(); member != map.end(); ++member) {
                members << member.key() % QLatin1Char(' ') % plain(*member);
            }
            return QLatin1Char('(') % members.join(QStringLiteral(", ")) % QLatin1Char(')');
        }
        case QMetaType::QVariantList:
        case QMetaType::QStringList:
            return QLatin1Char('(') % value.toStringList().join(QStringLiteral(", ")) % QLatin1Char(')');
        default:
            return value.toString();
    }
}
