#pragma once

#include <QString>

#include <functional>

class ZebHost;

/// Runs `work` on a thread of its own while the host shows a progress with `text`, which it translates. What the work
/// throws is thrown here as an `APP_ConcurrentException`; it has ended on every way out. Runs an event loop. GUI
/// thread.
void callOnWorker(ZebHost& host, const QString& text, const std::function<void()>& work);
