#pragma once

#include "GatheredFailures.h"
#include "ZebTypes.h"

#include <QString>
#include <QStringList>

class ZebHost;

/// Sets the trigger mode of many cameras, with the parameters of the host or with those of the default settings. May
/// throw what the host throws.
class TriggerEditing {
public:
    explicit TriggerEditing(ZebHost& host) : m_host(host) {}

    /// As the setters of `ParameterEditing`. `val` is a decimal `zeb::TriggerMode`.
    void setTriggerMode(const DocKeyList& keys, const QString& val);

    /// Whom a mode has not reached.
    struct Outcome {
        /// A line for the user about each camera whose memory is too small for it.
        QStringList invalid;
        GatheredFailures refusals;
    };

    /// A mode with the parameters of the default settings. Cameras whose memory is too small for them keep the mode
    /// they have. May run an event loop.
    Outcome applyTriggerMode(const DocList& docs, int mode);

private:
    void setWithHostSettings(const DocList& docs, int mode);
    GatheredFailures send(const DocList& docs, int mode, const zeb::TriggerSettings& settings);
    bool fits(DOC_Interface& doc, int mode, const zeb::TriggerSettings& settings) const;

    ZebHost& m_host;
};
