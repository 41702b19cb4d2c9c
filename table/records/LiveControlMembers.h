#pragma once

#include "Choices.h"
#include "ZebTypes.h"

#include <QList>
#include <QPair>
#include <QSize>
#include <QString>
#include <QStringList>

class DOC_Interface;
class Record;
class ZebHost;
struct TableState;

/// Members of the rows of the live control tab: what a camera offers and what it is set to.
///
/// Made for one list of records; preferences are read once. Each list is asked once a camera.
class LiveControlMembers {
public:
    LiveControlMembers(ZebHost& host, const TableState& state);

    void add(Record& record, DOC_Interface& doc, bool connected, bool lowLight);

    /// A mode as the user reads it.
    static QString triggerText(const ZebHost& host, int mode);

    /// Rates that a camera can record in step with a signal of `frequency` hertz.
    static QList<unsigned int> ratesInStep(const QList<unsigned int>& rates, int frequency);

private:
    void addFrameRates(Record& record, DOC_Interface& doc, bool lowLight);
    void addShutterSpeeds(Record& record, DOC_Interface& doc, bool lowLight);
    void addResolutions(Record& record, DOC_Interface& doc, bool lowLight);
    void addTriggerModes(Record& record, DOC_Interface& doc, bool lowLight);

    QStringList allowedShutterEntries(DOC_Interface& doc) const;
    Choices rateChoices(const QList<unsigned int>& rates) const;
    Choices triggerChoices(const QList<int>& modes, const QString& manualSuffix) const;

    ZebHost& m_host;
    const TableState& m_state;
    bool m_inStepOnly = false;
    bool m_delimitRates = false;
    bool m_shutterByTime = false;
    QList<unsigned int> m_allowedRates;
    QString m_rateUnit;

    ChoicesCache<QList<unsigned int>> m_rates;
    ChoicesCache<QStringList> m_shutters;
    ChoicesCache<QList<QSize>> m_resolutions;
    ChoicesCache<QPair<QList<int>, QString>> m_triggers;
};
