#include "SimSignalDevices.h"

#include "Clock.h"
#include "HostCalls.h"
#include "Rig.h"

#include <algorithm>

namespace {

/// Of the first hub in the plan of faults; no camera has such a key.
constexpr DOCKEY firstKey = 0x80000000U;

}  // namespace

void SimSignalDevices::replace(const QList<RigHub>& hubs) {
    m_hubs.clear();
    m_open = false;
    for (const RigHub& hub : hubs) {
        const DOCKEY key = firstKey + static_cast<DOCKEY>(m_hubs.size());
        m_hubs.push_back(std::make_unique<SignalHub>(key, hub.address, hub.state, m_context));
    }
}

SignalHub* SimSignalDevices::hub(const QString& address) const {
    const auto found =
        std::find_if(m_hubs.begin(), m_hubs.end(), [&address](const auto& hub) { return hub->address() == address; });
    return found == m_hubs.end() ? nullptr : found->get();
}

int SimSignalDevices::signal() const {
    const auto source = std::find_if(m_hubs.begin(), m_hubs.end(), [](const auto& hub) { return hub->signal() > 0; });
    return source == m_hubs.end() ? 0 : (*source)->signal();
}

void SimSignalDevices::close() {
    m_context.calls.change(OPERATION("ZebSignalDevices::close"));
    m_open = false;
    for (const auto& hub : m_hubs) {
        hub->disconnect();
    }
}

void SimSignalDevices::open(int mode) {
    m_context.calls.change(OPERATION("ZebSignalDevices::open"), {mode});
    waitForAnswers();
    m_open = true;
}

int SimSignalDevices::search(int kind, int mode) {
    m_context.calls.change(OPERATION("ZebSignalDevices::search"), {kind, mode});
    if (!m_open) {
        return 0;
    }
    waitForAnswers();
    int found = 0;
    for (const auto& hub : m_hubs) {
        hub->search();
        found += hub->wasFound() ? 1 : 0;
    }
    return found;
}

void SimSignalDevices::waitForAnswers() {
    int longest = 0;
    for (const auto& hub : m_hubs) {
        longest = std::max(longest, hub->isThere() ? hub->state().latency : 0);
    }
    m_context.clock.wait(longest);
}

ZebSignalDevice* SimSignalDevices::findByAddress(const QString& address) {
    m_context.calls.ask(OPERATION("findByAddress"));
    SignalHub* known = hub(address);
    return known && known->wasFound() ? known : nullptr;
}
