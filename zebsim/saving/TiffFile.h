#pragma once

#include <QByteArray>

class QImage;

/// The picture as a TIFF file of 8 bits a colour, compressed without loss. `description` is text without a zero in it.
/// Empty when there is no memory for it.
QByteArray tiffOf(const QImage& picture, const QByteArray& description);
