#include "HostCalls.h"

#include "FaultPlan.h"
#include "Journal.h"

#include <cstring>
#include <stdexcept>

namespace {

thread_local int ownWork = 0;

}  // namespace

HostCalls::Own::Own() {
    ++ownWork;
}

HostCalls::Own::~Own() {
    --ownWork;
}

void HostCalls::ask(const char* operation) const {
    if (ownWork > 0) {
        return;
    }
    const QString reason = m_faults.suffer(FaultPlan::Host, operation, m_clock);
    if (!reason.isEmpty()) {
        throw std::runtime_error(reason.toStdString());
    }
}

void HostCalls::change(const char* call, const QVariantList& args) const {
    note(call, args);
    ask(std::strrchr(call, ':') + 1);
}

void HostCalls::note(const char* call, const QVariantList& args) const {
    m_journal.record(call, args);
}
