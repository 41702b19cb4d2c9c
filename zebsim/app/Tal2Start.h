#pragma once

#include <QStringList>

class SimHost;

/// Starts TAL2 with the folders that were saved to, if saves are to end so and it is there. That it can't be started is
/// told. GUI thread.
void handOverToTal2(SimHost& host, const QStringList& folders);
