#pragma once

#include "JS_Mediator.h"
#include "ZebTypes.h"

/// Bridge of the drop-down box: what the box lists, and what a choice does. GUI thread.
///
/// A choice hides the box first. It is refused while another call of the box or of its owner waits for its end.
class JS_Mediator_SelectBox : public JS_Mediator {
    Q_OBJECT

public:
    explicit JS_Mediator_SelectBox(ZebHost* host, QObject* parent = nullptr);

    /// A choice counts as a call of `owner` too, whose page then waits as for its own. Null for none.
    void setOwner(JS_Mediator* owner) { m_owner = owner; }

    /// Tell the page what to list. Each may throw what the camera throws; the page keeps its list then.
    void showPartitions();
    /// `value` is the channel to select; empty for the one in use.
    void showVariables(const QString& value);
    void showVariablesToRegister(const QString& value);

Q_SIGNALS:
    /// Names of the partitions; in live mode an empty text and the entry of the settings follow.
    void signalShowPartition(const QVariantList& names);
    /// Each a JSON object with the channels.
    void signalShowVariable(const QString& json);
    void signalShowVariableRegist(const QString& json);
    /// Height of a row in pixels.
    void signalSetHeight(int height);

public Q_SLOTS:
    /// `value` is the number of the partition. One past the last opens the settings, in live mode.
    void slotNotifyPartition(const QString& value);
    void slotNotifyVariable(const QString& value);
    /// The partition in use of the current camera; 0 without one.
    PARTITIONNUMBER getCurrentPartition();
    void slotNotifyVariableRegist(const QString& value);

private:
    template <typename Work>
    void choice(const char* method, const QString& value, Work&& work);
    void choosePartition(PARTITIONNUMBER number);
    QString variablesJson(const QString& value) const;

    QPointer<JS_Mediator> m_owner;
};
