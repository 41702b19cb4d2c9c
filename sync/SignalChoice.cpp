#include "SignalChoice.h"

SignalOffer SignalOffer::of(int frequency, const QList<int>& frequencies) {
    SignalOffer offer;
    offer.frequency = frequency;
    for (const int each : frequencies) {
        offer.frequencies.append(QString::number(each));
    }
    return offer;
}

QString SignalChoice::text() const {
    const QString decimal = QString::number(frequency);
    return frequencies.contains(decimal) ? decimal : QString();
}

SignalChoice chooseSignal(const QStringList& configured, int frequency, const SignalOffer& source) {
    if (configured.isEmpty()) {
        return {source.frequency, source.frequencies};
    }
    return {source.frequency != 0 ? source.frequency : frequency, configured};
}

bool needsFrequency(int chosen, const SignalOffer& source) {
    return chosen != source.frequency && source.frequencies.contains(QString::number(chosen));
}
