#pragma once

class QFutureWatcherBase;
class QString;
class ZebHost;

/// Shows a modal progress with the plain text `text` until `watcher` has finished. Nobody can close it. Back at once
/// when there is nothing to wait for, and when the application quits meanwhile.
void waitWithProgress(ZebHost& host, const QString& text, QFutureWatcherBase& watcher);
