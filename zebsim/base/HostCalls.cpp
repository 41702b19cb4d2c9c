#include "HostCalls.h"

#include "FaultPlan.h"
#include "Journal.h"

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

void HostCalls::ask(HostOperation operation) const {
    if (ownWork > 0) {
        return;
    }
    const QString reason = m_faults.suffer(FaultPlan::Host, operation.name(), m_clock);
    if (!reason.isEmpty()) {
        throw std::runtime_error(reason.toStdString());
    }
}

void HostCalls::change(HostOperation operation, const QVariantList& args) const {
    note(operation.call(), args);
    ask(operation);
}

void HostCalls::note(const char* call, const QVariantList& args) const {
    m_journal.record(call, args);
}
