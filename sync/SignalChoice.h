#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What a source of the signal makes, and what it could make.
struct SignalOffer {
    /// Hertz; 0 when no source was read.
    int frequency = 0;
    /// Decimal texts.
    QStringList frequencies;

    static SignalOffer of(int frequency, const QList<int>& frequencies);
};

/// The frequency that the table shows, and those to choose from.
struct SignalChoice {
    int frequency = 0;
    QStringList frequencies;

    /// The frequency as decimal text; empty when it can't be chosen.
    QString text() const;
};

/// What to show of a source that has been read, when `frequency` was chosen last. `configured`, the frequencies of the
/// default settings, come before the source's own; a frequency that the source makes comes before the one chosen.
SignalChoice chooseSignal(const QStringList& configured, int frequency, const SignalOffer& source);

/// Whether a source that has just been connected is to be set to the frequency that the user has chosen.
bool needsFrequency(int chosen, const SignalOffer& source);
