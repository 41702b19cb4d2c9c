#include "FaultPlan.h"

#include "Clock.h"

namespace {

const QString everyOperation = QString::fromLatin1(FaultPlan::EveryOperation);

}

void FaultPlan::plant(DOCKEY key, const QString& operation, const Fault& fault) {
    const std::lock_guard lock(m_mutex);
    if (!fault.isEmpty()) {
        m_faults[key][operation] = fault;
    } else if (operation == everyOperation) {
        m_faults.remove(key);
    } else if (m_faults.contains(key)) {
        m_faults[key].remove(operation);
    }
    if (fault.isEmpty()) {
        if (m_gone.remove(key)) {
            m_tellGone();
        }
        if (m_faults.value(key).isEmpty()) {
            m_faults.remove(key);
        }
    } else if (fault.gone && operation == everyOperation) {
        insertGone(key);
    }
    updateAny();
}

QHash<QString, Fault> FaultPlan::planted(DOCKEY key) const {
    const std::lock_guard lock(m_mutex);
    return m_faults.value(key);
}

void FaultPlan::insertGone(DOCKEY key) {
    if (!m_gone.contains(key)) {
        m_gone.insert(key);
        m_tellGone();
    }
}

void FaultPlan::plantAt(int call, const Fault& fault) {
    const std::lock_guard lock(m_mutex);
    m_calls.clear();
    m_faultyCall = call;
    m_callFault = fault;
    updateAny();
}

QVector<FaultPlan::Call> FaultPlan::calls() const {
    const std::lock_guard lock(m_mutex);
    return m_calls;
}

void FaultPlan::updateAny() {
    m_any = !m_faults.isEmpty() || !m_gone.isEmpty() || m_faultyCall > 0;
}

void FaultPlan::clear() {
    const std::lock_guard lock(m_mutex);
    m_faultyCall = 0;
    m_faults.clear();
    m_gone.clear();
    m_any = false;
}

Fault FaultPlan::meet(DOCKEY key, const char* operation) {
    const std::lock_guard lock(m_mutex);
    const auto faults = m_faults.value(key);
    const QString name = QString::fromLatin1(operation);
    Fault fault = faults.contains(name) ? faults.value(name) : faults.value(everyOperation);
    if (fault.afterCalls > 0) {
        --m_faults[key][faults.contains(name) ? name : everyOperation].afterCalls;
        fault = {};
    }
    if (m_faultyCall > 0) {
        m_calls.append({key, operation});
        fault = m_calls.size() == m_faultyCall ? m_callFault : fault;
    }
    if (fault.gone) {
        insertGone(key);
    }
    return fault;
}

QString FaultPlan::suffer(DOCKEY key, const char* operation, Clock& clock) {
    if (!m_any) {
        return {};
    }
    const Fault fault = meet(key, operation);
    clock.wait(fault.delay);
    return isGone(key) ? QString() : fault.throws;
}

bool FaultPlan::isGone(DOCKEY key) const {
    if (!m_any) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    return m_gone.contains(key);
}
