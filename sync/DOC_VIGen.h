#pragma once

#include "DOC_SignalGenerator.h"

#include <QStringList>

class ZebHost;

/// A function generator that is spoken to over VISA. Gone, it has closed the instrument and unloaded the driver.
///
/// There is one driver and one session for all objects.
class DOC_VIGen : public DOC_SignalGenerator {
public:
    /// `host` must outlive this.
    explicit DOC_VIGen(ZebHost* host) : m_host(host) {}
    ~DOC_VIGen() override;
    Q_DISABLE_COPY(DOC_VIGen)

    bool connect(int type, unsigned int address) override;
    void disconnect() override;
    bool isConnected() override;
    bool isSupported() const override;
    QString getIdentity() const override;
    void setFrequency(int hertz) override;
    bool loadDriver() override;
    void unloadDriver() override;
    QList<int> getFrequencies() const override;
    int getFrequency() const override;

private:
    ZebHost* const m_host;
    /// Of the last `connect`, for the log.
    QString m_resource;
    bool m_connected = false;
    bool m_driverLoaded = false;
    const QStringList m_supportedModels{QStringLiteral("33210A")};
};
