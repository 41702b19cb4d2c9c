#pragma once

#include "Operation.h"

#include <QVariantList>

class Clock;
class FaultPlan;
class Journal;

/// What plug-ins call of the host itself: any of it can fail, and what changes something stands in the journal. Any
/// thread.
class HostCalls {
public:
    HostCalls(Journal& journal, FaultPlan& faults, Clock& clock)
        : m_journal(journal), m_faults(faults), m_clock(clock) {}

    /// A question begins with this; it takes the time that a planted fault says. Throws `std::runtime_error`.
    void ask(HostOperation operation) const;
    /// The same for what changes something.
    void change(HostOperation operation, const QVariantList& args = {}) const;
    /// A change that can't fail, as "ZebHost::updateUI".
    void note(const char* call, const QVariantList& args = {}) const;

    /// While one lives, what is asked on its thread is the host's own and meets no fault.
    class Own {
    public:
        Own();
        ~Own();
        Q_DISABLE_COPY(Own)
    };

private:
    Journal& m_journal;
    FaultPlan& m_faults;
    Clock& m_clock;
};
