#include "DeterScope.h"

#include "ZebHost.h"

DeterScope::DeterScope(ZebHost& host) : m_host(host) {
    m_host.deterUpdateUI(true);
}

DeterScope::~DeterScope() {
    m_host.deterUpdateUI(false);
}
