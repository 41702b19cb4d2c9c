#include "signals/SimSignalDevices.h"

#include "host/Journal.h"

void SimSignalDevices::close() {
    m_journal.record("ZebSignalDevices::close");
}

void SimSignalDevices::open(int mode) {
    m_journal.record("ZebSignalDevices::open", {mode});
}

int SimSignalDevices::search(int kind, int mode) {
    m_journal.record("ZebSignalDevices::search", {kind, mode});
    return 0;
}

ZebSignalDevice* SimSignalDevices::findByAddress(const QString& /*address*/) {
    return nullptr;
}
