#pragma once

#include <QtGlobal>

class QString;
class ZebHost;

/// Another program that goes on with what was saved. GUI thread.
class UTL_Integration {
public:
    /// `host` is not owned and outlives the object.
    explicit UTL_Integration(ZebHost* host) : m_host(host) {}
    virtual ~UTL_Integration() = default;
    Q_DISABLE_COPY(UTL_Integration)

    ZebHost& host() const { return *m_host; }
    /// Whether that file is in the folder; false without a folder.
    bool exists(const QString& folder, const QString& file) const;

private:
    ZebHost* const m_host;
};
