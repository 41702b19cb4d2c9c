#pragma once

class QImage;
class SimHost;

/// Does what `ZebSaver::snapShot` tells with the image in front, a null image when there is none. What goes wrong is
/// shown. GUI thread.
void takeSnapShot(SimHost& host, const QImage& image, int mode);
