#pragma once

#include <QList>
#include <QString>

/// An instrument that makes the common signal of all cameras. GUI thread.
class DOC_SignalGenerator {
public:
    virtual ~DOC_SignalGenerator() = default;

    /// Opens the instrument, unless it is connected. `type` 0: over TCP/IP, `address` being the IPv4 address with its
    /// first octet highest. False when it can't be reached. May run an event loop while it waits.
    virtual bool connect(int type, unsigned int address) = 0;
    virtual void disconnect() = 0;
    /// Asks the instrument. One that no longer answers is not connected until the next `connect`.
    virtual bool isConnected() = 0;
    /// Whether its model is one that this class can program. Throws when it does not answer.
    virtual bool isSupported() const = 0;
    /// What the instrument says of itself; empty when it is not connected. Throws when it does not answer.
    virtual QString getIdentity() const = 0;
    /// Puts the signal out. Nothing happens when the instrument is not connected; throws a `DOC_Exception` when it
    /// refuses.
    virtual void setFrequency(int hertz) = 0;
    /// What all else needs. False when the instrument library or a part of it is missing.
    virtual bool loadDriver() = 0;
    /// Closes the instrument first.
    virtual void unloadDriver() = 0;
    /// Frequencies on offer, in hertz.
    virtual QList<int> getFrequencies() const = 0;
    /// Present frequency in hertz; 0 when the instrument is not connected. Throws a `DOC_Exception` when it does not
    /// answer with a number.
    virtual int getFrequency() const = 0;
};
