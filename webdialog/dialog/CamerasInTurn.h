#pragma once

#include "ZebTypes.h"

#include <QString>

#include <functional>

class ZebHost;

/// Runs `step` on the cameras of `keys`, one after the other in their order, up to one that fails: throws with its
/// name, and those that were not reached. One that is gone when its turn comes is left out.
///
/// A progress names the camera whose turn it is by `text`, which is translated and has %1 for the name, %2 for its
/// number and %3 for how many there are. Nobody can close it, and what is pressed meanwhile reaches nothing else, then
/// or later. It runs an event loop between the cameras; the host must outlive that. GUI thread.
void forEachCameraInTurn(ZebHost& host, const QString& text, const DocKeyList& keys,
                         const std::function<void(DOC_Interface& doc)>& step);

/// A line feed, and a line with the names of those of `keys` that are there: nothing was done with them. Empty without
/// any.
QString notReached(ZebHost& host, const DocKeyList& keys);
