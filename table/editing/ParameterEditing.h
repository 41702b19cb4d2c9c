#pragma once

#include "ZebTypes.h"

#include <QString>

#include <functional>

class GatheredFailures;
class ZebHost;
struct AllowedValues;
struct CameraAction;
struct SharedParameter;

/// Changes parameters of many cameras at once: one call of the host for all of them. A locked camera keeps its
/// parameters. In live mode only. `val` is a value that the table has offered; nothing happens for an empty one. May
/// throw what the host throws.
class ParameterEditing {
public:
    /// `allowed` are the values to which the default settings limit what cameras offer.
    ParameterEditing(ZebHost& host, const AllowedValues& allowed) : m_host(host), m_allowed(allowed) {}

    /// A camera in low light mode keeps its lock as it is.
    void setParamLock(const DocKeyList& keys, bool lock);

    /// These may ask the user first, see `changeableDocs`. `val` is decimal frames a second,
    void setFrameRate(const DocKeyList& keys, const QString& val);
    /// a speed of the shutter list in use,
    void setShutterSpeed(const DocKeyList& keys, const QString& val);
    /// or a size as "1280 x 800".
    void setResolution(const DocKeyList& keys, const QString& val);

    /// No keys stand for all connected cameras.
    void setReduceMode(const DocKeyList& keys, bool on);
    void setLowLight(const DocKeyList& keys, bool on);
    void setLowLightType(const DocKeyList& keys, bool fast);

    /// Whether the last of these calls has told the host anything.
    bool isSent() const { return m_isSent; }

private:
    using Setter = std::function<void(const DocList&)>;
    /// What is changed, and to what.
    struct Change {
        const CameraAction& action;
        QString value;
    };
    /// Throws what has gone wrong before and in the setting.
    void setOn(const DocList& docs, const Change& change, GatheredFailures& failures, const Setter& set);

    /// Hands over the documents that may be changed, unless there are none.
    void change(const DocKeyList& keys, const Change& change, const Setter& set);
    /// The same for a parameter that heads may share; nothing for an empty value.
    void changeShared(const DocKeyList& keys, const SharedParameter& parameter, const Change& change,
                      const Setter& set);
    DocKeyList orAllConnected(const DocKeyList& keys) const;
    int shutterFraction(const DocList& docs, int value) const;

    ZebHost& m_host;
    const AllowedValues& m_allowed;
    bool m_isSent = false;
};
