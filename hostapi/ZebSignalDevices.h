#pragma once

#include <QList>
#include <QString>

/// A Sync Hub: it puts one signal on the cables of all its cameras. GUI thread; every operation may throw.
class ZebSignalDevice {
public:
    virtual ~ZebSignalDevice() = default;

    virtual bool isConnected() const = 0;
    /// 0 for the hub that makes the signal; the others pass it on.
    virtual int getRole() const = 0;
    /// Hertz.
    virtual int getFrequency() const = 0;
    virtual void setFrequency(int hertz) = 0;
    /// Frequencies on offer, in Hertz.
    virtual QList<int> getFrequencies() const = 0;
};

/// The Sync Hubs that the host drives. GUI thread; every operation may throw.
class ZebSignalDevices {
public:
    virtual ~ZebSignalDevices() = default;

    /// Ends the connections to all hubs.
    virtual void close() = 0;
    /// `mode` and the arguments of the search are the host's: 1, and `kind` 3 with `mode` 1.
    virtual void open(int mode) = 0;
    /// Connects the hubs that answer, and tells how many did.
    virtual int search(int kind, int mode) = 0;
    /// Null when no hub with that IPv4 address was found. Good until the next `close`.
    virtual ZebSignalDevice* findByAddress(const QString& address) = 0;
};
