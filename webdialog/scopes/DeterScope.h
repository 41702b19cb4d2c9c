#pragma once

#include <QtGlobal>

class ZebHost;

/// Keeps the host from running update cycles while it lives. Scopes nest.
class DeterScope {
public:
    explicit DeterScope(ZebHost& host);
    ~DeterScope();
    Q_DISABLE_COPY(DeterScope)

private:
    ZebHost& m_host;
};
