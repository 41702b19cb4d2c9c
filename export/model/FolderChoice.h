#pragma once

#include <QString>

class ZebHost;

/// Asks the user for a folder, from `start` on or from the nearest one above that is there. Empty when there is none.
/// Runs an event loop. GUI thread.
QString chooseFolder(ZebHost& host, const QString& start);

/// `path`, or the nearest folder above it that is there.
QString nearestFolder(const QString& path);
