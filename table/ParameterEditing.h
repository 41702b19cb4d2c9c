#pragma once

#include "ZebTypes.h"

#include <QString>

class ZebHost;

/// Changes parameters of many cameras at once: one call of the host for all of them. A locked camera keeps its
/// parameters. In live mode only. May throw what the host throws.
class ParameterEditing {
public:
    explicit ParameterEditing(ZebHost& host) : m_host(host) {}

    /// A camera in low light mode keeps its lock as it is.
    void setParamLock(const DocKeyList& keys, bool lock);
    /// `val` in frames a second, decimal; nothing happens for an empty one. May ask the user first.
    void setFrameRate(const DocKeyList& keys, const QString& val);

private:
    DocList editableDocs(const DocKeyList& keys) const;
    bool reachesLockedHead(const DocList& docs) const;
    bool userAgrees(const QString& parameter) const;

    ZebHost& m_host;
};
