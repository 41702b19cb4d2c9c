#pragma once

class QImage;

/// Puts red, green and blue of each pixel of row `y` into `levels`, with 8 or 16 bits each; `picture` is of the format
/// RGB32. It takes no memory of a picture's size: fresh memory costs as much time as some encoders take. Any thread.
void copyRow(const QImage& picture, int y, int depth, char* levels);
