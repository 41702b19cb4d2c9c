#pragma once

class ParallelRows;
class QFutureWatcherBase;
class QString;
class QStringList;
class ZebHost;

/// Shows a modal progress with the plain text `text` until `watcher` has finished. Nobody can close it. Back at once
/// when there is nothing to wait for, and when the application quits meanwhile.
void waitWithProgress(ZebHost& host, const QString& text, QFutureWatcherBase& watcher);

/// The same until `rows` have ended, with the names of those that have not. As long as some have not begun it offers to
/// leave them out. Back when all that have begun have ended; the others are left out when the application quits
/// meanwhile.
void waitWithProgress(ZebHost& host, ParallelRows& rows, const QStringList& names);
