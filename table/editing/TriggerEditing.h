#pragma once

#include "GatheredFailures.h"
#include "ZebTypes.h"

#include <QString>

#include <functional>
#include <vector>

class ZebHost;

/// Sets the trigger mode of many cameras, with the parameters of the host or with those of the default settings. May
/// throw what the host throws.
class TriggerEditing {
public:
    explicit TriggerEditing(ZebHost& host) : m_host(host) {}

    /// As the setters of `ParameterEditing`. `val` is a decimal `zeb::TriggerMode`.
    void setTriggerMode(const DocKeyList& keys, const QString& val);

    /// Whether that has told the host anything.
    bool isSent() const { return m_isSent; }

    /// The parameters of the default settings.
    zeb::TriggerSettings defaultParameters() const;
    /// Whether the camera's memory takes what a mode records with these parameters. One that does not fit keeps the
    /// mode that it has, and the user is told by `misfitText`. Any thread.
    static bool fits(DOC_Interface& doc, int mode, const zeb::TriggerSettings& settings);
    QString misfitText(const QString& camera) const;
    /// Tells the host to set something on cameras. May run an event loop.
    using Command = std::function<void(const DocList&)>;
    /// What sets a mode, one after the other.
    std::vector<Command> commands(int mode, const zeb::TriggerSettings& settings) const;

private:
    void applyTriggerMode(const DocList& docs, int mode, GatheredFailures& failures);
    void setWithHostSettings(const DocList& docs, int mode);
    GatheredFailures send(const DocList& docs, int mode, const zeb::TriggerSettings& settings);

    ZebHost& m_host;
    bool m_isSent = false;
};
