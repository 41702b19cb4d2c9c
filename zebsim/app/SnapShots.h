#pragma once

#include <optional>

class SimHost;
struct CameraFrame;

/// Does what `ZebSaver::snapShot` tells with the image in front, if there is one. What goes wrong is shown. GUI thread.
void takeSnapShot(SimHost& host, const std::optional<CameraFrame>& frame, int mode);
