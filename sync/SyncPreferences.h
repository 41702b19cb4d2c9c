#pragma once

#include <QString>
#include <QStringList>

class ZebHost;

/// What the user has set about the common signal, read anew at each call. May throw what the host throws.
namespace syncprefs {

/// Synchronisation is in use: live mode only.
bool isInUse(const ZebHost& host);
/// It is, and on a signal from outside.
bool isExternal(const ZebHost& host);
/// The hub drives the cameras, and there are addresses of hubs.
bool usesHubs(const ZebHost& host);

/// IPv4 addresses of the Sync Hubs; empty when none is set.
QStringList hubAddresses(const ZebHost& host);
/// IPv4 address of the signal generator, or of the master that the user prefers; empty for none.
QString generatorAddress(const ZebHost& host);
QString masterAddress(const ZebHost& host);
/// A `zeb::SyncPort`.
int port(const ZebHost& host);

}  // namespace syncprefs
