#pragma once

#include "SyncCamera.h"

#include <QList>

/// The cameras in the order in which they go to the host, the master of a chain first. `triggerMode` is the master's
/// (`zeb::TriggerMode`), `masterAddress` its IPv4 address.
QList<SyncCamera> sortForSync(QList<SyncCamera> cameras, bool external, const QString& masterAddress, int triggerMode);
