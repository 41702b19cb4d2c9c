#include "LiveControlMembers.h"

#include "DOC_Control.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "JsonText.h"
#include "NumberFormat.h"
#include "Record.h"
#include "SettingsKeys.h"
#include "SyncPreferences.h"
#include "TableState.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QHash>

#include <algorithm>
#include <iterator>

/// Found by `QHash` through the argument's namespace, which is the global one.
static uint qHash(const QSize& size, uint seed = 0) {
    return qHash(qMakePair(size.width(), size.height()), seed);
}

namespace {

constexpr const char* TriggerNames[] = {
    QT_TR_NOOP("Start Trg"),         QT_TR_NOOP("Center Trg"),           QT_TR_NOOP("End Trg"),
    QT_TR_NOOP("Random Trg"),        QT_TR_NOOP("Manual Trg"),           QT_TR_NOOP("Random Reset Trg"),
    QT_TR_NOOP("Random Center Trg"), QT_TR_NOOP("Random Manual Trg"),    QT_TR_NOOP("Twostage Trg"),
    QT_TR_NOOP("Twostage Half Trg"), QT_TR_NOOP("Twostage Quarter Trg"), QT_TR_NOOP("Twostage Oneeighth Trg"),
    QT_TR_NOOP("Reset Trg"),         QT_TR_NOOP("Rec on cmd Trg"),       QT_TR_NOOP("Random Loop Trg"),
    QT_TR_NOOP("None Error Trg")};

constexpr int LastTriggerName = int(std::size(TriggerNames)) - 1;

/// Types of a shutter entry, its third field.
enum ShutterEntryType { ShutterAsFraction = 1, ShutterAsTime = 2 };

QString resolutionText(const QSize& size) {
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QList<unsigned int> toRates(const QStringList& texts) {
    QList<unsigned int> rates;
    for (const QString& text : texts) {
        rates.append(text.toUInt());
    }
    return rates;
}

Choices textChoices(const QStringList& texts) {
    QStringList items;
    std::transform(texts.begin(), texts.end(), std::back_inserter(items), jsontext::string);
    return {jsontext::array(items), texts};
}

Choices resolutionChoices(const QList<QSize>& sizes) {
    QStringList texts;
    std::transform(sizes.begin(), sizes.end(), std::back_inserter(texts), resolutionText);
    return textChoices(texts);
}

/// An entry is "value;label;type".
Choices shutterChoices(const QStringList& entries) {
    QStringList items;
    QStringList values;
    for (const QString& entry : entries) {
        const QString value = entry.section(QLatin1Char(';'), 0, 0);
        items.append(jsontext::choice(entry.section(QLatin1Char(';'), 1, 1), value));
        values.append(value);
    }
    return {jsontext::array(items), values};
}

/// Exposure time of 1/`fraction` second, by the camera's own pairs where it has one.
int exposureTime(int fraction, const QList<int>& fractions, const QList<int>& times) {
    const int index = fractions.indexOf(fraction);
    return index >= 0 && index < times.size() ? times.at(index) : zeb::NanosecondsPerSecond / fraction;
}

}  // namespace

LiveControlMembers::LiveControlMembers(ZebHost& host, const TableState& state)
    : m_host(host),
      m_state(state),
      m_inStepOnly(state.sync.frequency > 0 && syncprefs::isInUse(host) &&
                   host.getPrefBool(settingskeys::DeviceSpeedPlaying)),
      m_delimitRates(host.getPrefBool(QStringLiteral("display/recordRateInsertDelimiter"))),
      m_shutterByTime(host.getPrefInt(QStringLiteral("display/ShutterSpeed")) == zeb::ShutterDisplaySecondList),
      m_allowedRates(toRates(state.allowed.frameRates)),
      m_rateUnit(host.translate(TextKey("fps"))) {}

void LiveControlMembers::add(Record& record, DOC_Interface& doc, bool connected, bool lowLight) {
    if (connected) {
        addFrameRates(record, doc, lowLight);
        addShutterSpeeds(record, doc, lowLight);
        addResolutions(record, doc, lowLight);
        addTriggerModes(record, doc, lowLight);
        return;
    }
    for (const auto* list : {"frameRates", "shutterSpeeds", "resolutions", "triggerModes"}) {
        record.setList(QLatin1String(list), QStringLiteral("[]"));
    }
    for (const auto* value : {"frameRate", "shutterSpeed", "resolution", "triggerMode"}) {
        record.setText(QLatin1String(value), {});
    }
}

QString LiveControlMembers::triggerText(const ZebHost& host, int mode) {
    return host.translate(QLatin1String(TriggerNames[mode >= 0 && mode < LastTriggerName ? mode : LastTriggerName]));
}

QList<unsigned int> LiveControlMembers::ratesInStep(const QList<unsigned int>& rates, int frequency) {
    const auto signal = static_cast<unsigned int>(frequency);
    QList<unsigned int> kept;
    std::copy_if(rates.begin(), rates.end(), std::back_inserter(kept),
                 [signal](unsigned int rate) { return rate >= signal || (rate != 0 && signal % rate == 0); });
    return kept;
}

void LiveControlMembers::addFrameRates(Record& record, DOC_Interface& doc, bool lowLight) {
    const bool limited = !m_allowedRates.isEmpty() && !lowLight;
    QList<unsigned int> rates = limited ? m_allowedRates : doc.control().getRecordRateList();
    if (m_inStepOnly) {
        rates = ratesInStep(rates, m_state.sync.frequency);
    }
    const unsigned int current = doc.control().getRecordRate(0);
    if (rates.isEmpty()) {
        rates.append(current);
    }
    const Choices& choices = m_rates.get(rates, [this](const auto& list) { return rateChoices(list); });
    record.setList(QLatin1String("frameRates"), choices.json);
    record.setText(QLatin1String("frameRate"), choices.shown(QString::number(current)));
}

void LiveControlMembers::addShutterSpeeds(Record& record, DOC_Interface& doc, bool lowLight) {
    const bool limited = !m_state.allowed.shutterSpeeds.isEmpty() && !lowLight;
    const QStringList entries = limited ? allowedShutterEntries(doc) : doc.control().getShutterSpeedEntries();
    const Choices& choices = m_shutters.get(entries, shutterChoices);
    record.setList(QLatin1String("shutterSpeeds"), choices.json);
    record.setText(QLatin1String("shutterSpeed"), choices.shown(QString::number(doc.control().getShutterSpeed())));
}

void LiveControlMembers::addResolutions(Record& record, DOC_Interface& doc, bool lowLight) {
    const QStringList& allowed = m_state.allowed.resolutions;
    const Choices limited = allowed.isEmpty() || lowLight ? Choices() : textChoices(allowed);
    const Choices& choices =
        limited.values.isEmpty() ? m_resolutions.get(doc.control().getResolutionList(), resolutionChoices) : limited;
    record.setList(QLatin1String("resolutions"), choices.json);
    record.setText(QLatin1String("resolution"), choices.shown(resolutionText(doc.control().getResolution())));
}

void LiveControlMembers::addTriggerModes(Record& record, DOC_Interface& doc, bool lowLight) {
    const DOC_Control& camera = doc.control();
    const int current = camera.getTriggerMode();
    QString manualSuffix;
    if (current == zeb::TriggerManual && !lowLight) {
        const QString percent = numberformat::manualTriggerPercent(camera.getManualTriggerParameters().triggerFrame,
                                                                   doc.frames().getFrameCount(0, 0));
        manualSuffix = percent.isEmpty() ? QString() : QString(QLatin1Char(' ') % percent % QLatin1Char('%'));
    }
    const Choices& choices = m_triggers.get(qMakePair(camera.getTriggerModeList(), manualSuffix),
                                            [this](const auto& key) { return triggerChoices(key.first, key.second); });
    record.setList(QLatin1String("triggerModes"), choices.json);
    record.setText(QLatin1String("triggerMode"), choices.shown(QString::number(current)));
}

QStringList LiveControlMembers::allowedShutterEntries(DOC_Interface& doc) const {
    const QList<int> fractions = m_shutterByTime ? doc.control().getShutterSpeedList(1) : QList<int>();
    const QList<int> times = m_shutterByTime ? doc.control().getShutterSpeedList(2) : QList<int>();
    const QLatin1Char separator(';');
    QStringList entries;
    for (const QString& text : m_state.allowed.shutterSpeeds) {
        const int fraction = text.toInt();
        if (fraction <= 0) {
            continue;
        }
        const int value = m_shutterByTime ? exposureTime(fraction, fractions, times) : fraction;
        const int type = m_shutterByTime ? ShutterAsTime : ShutterAsFraction;
        entries.append(QString::number(value) % separator % doc.formatShutterSpeed(value, 0) % separator %
                       QString::number(type));
    }
    return entries;
}

Choices LiveControlMembers::rateChoices(const QList<unsigned int>& rates) const {
    QStringList items;
    QStringList values;
    for (const unsigned int rate : rates) {
        values.append(QString::number(rate));
        items.append(jsontext::choice(numberformat::rate(rate, m_rateUnit, m_delimitRates), values.last()));
    }
    return {jsontext::array(items), values};
}

Choices LiveControlMembers::triggerChoices(const QList<int>& modes, const QString& manualSuffix) const {
    QStringList items;
    QStringList values;
    for (const int mode : modes) {
        const QString suffix = mode == zeb::TriggerManual ? manualSuffix : QString();
        values.append(QString::number(mode));
        items.append(jsontext::choice(triggerText(m_host, mode) % suffix, values.last()));
    }
    return {jsontext::array(items), values};
}
