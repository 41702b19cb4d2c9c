#pragma once

#include <QString>
#include <QStringList>

class ParallelRows;
class ZebHost;

/// Who has not answered yet of rows that have these names, as a user reads it.
QString awaitedText(const ZebHost& host, const ParallelRows& rows, const QStringList& names);

/// Waits until `rows` have ended, in an event loop in which no press arrives, then or later. From the second second on
/// a progress names those that have not ended; nobody can close it. The host may destroy its plug-ins meanwhile. GUI
/// thread.
void waitForRows(ZebHost& host, const ParallelRows& rows, const QStringList& names);
