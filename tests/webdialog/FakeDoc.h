#pragma once

#include "DOC_Activity.h"
#include "DOC_Interface.h"
#include "Journal.h"

#include <stdexcept>

/// A camera document that knows only how to refresh its image, or fails at it.
class FakeDoc : public DOC_Interface, public DOC_Activity {
public:
    explicit FakeDoc(DOCKEY key, bool refreshFails = false) : m_key(key), m_refreshFails(refreshFails) {}

    DOC_Activity& activity() override { return *this; }
    DOC_Lock& lock() override { throw std::logic_error("no lock"); }
    DOC_Frames& frames() override { throw std::logic_error("no frames"); }
    DOC_Image& image() override { throw std::logic_error("no image"); }
    DOC_Control& control() override { throw std::logic_error("no control"); }
    DOC_Head& head() override { throw std::logic_error("no head"); }
    DOC_Storage& storage() override { throw std::logic_error("no storage"); }

    DOCKEY getKey() const override { return m_key; }
    bool isConnected() const override { return true; }
    bool isSelected() const override { return false; }
    bool isMobileSelected() const override { return false; }
    bool isSdSelected() const override { return false; }
    bool isQuikDriveSelected() const override { return false; }
    bool isCFastSelected() const override { return false; }
    DOC_Interface* getParentDoc() const override { return nullptr; }
    QString getPartitionName(PARTITIONNUMBER) const override { return {}; }
    QStringList getAlerts() const override { return {}; }
    QString formatShutterSpeed(int, int) const override { return {}; }

    bool isSuspendReduce() const override { return false; }
    bool isStopLive() const override { return false; }
    void refresh(bool) override {
        Journal::note(QStringLiteral("refresh ") % QString::number(m_key));
        if (m_refreshFails) throw std::runtime_error("camera is silent");
    }

private:
    const DOCKEY m_key;
    const bool m_refreshFails;
};
