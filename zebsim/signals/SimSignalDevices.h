#pragma once

#include "ZebSignalDevices.h"

class Journal;

/// The Sync Hubs that the host has found. A rig has none yet.
class SimSignalDevices : public ZebSignalDevices {
public:
    explicit SimSignalDevices(Journal& journal) : m_journal(journal) {}

    void close() override;
    void open(int mode) override;
    int search(int kind, int mode) override;
    ZebSignalDevice* findByAddress(const QString& address) override;

private:
    Journal& m_journal;
};
