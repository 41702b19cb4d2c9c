#pragma once

#include "CameraFrame.h"

#include <QImage>

/// The picture of a frame, `size` pixels large: a turning wheel over a coloured ground, and the camera's name, the
/// frame's number and its time where it has texts, with the sensor's noise and the effects of plug-ins. Equal frames
/// make equal pictures; an effect that sees neighbours works on one of the camera's resolution. Any thread.
///
/// A frame of a recording in files has the picture that lies there, as it is where it needs no other size and has no
/// effects. Throws `FileError` when that can't be read.
QImage drawFrame(const CameraFrame& frame, const QSize& size);
/// The same to be looked at: what can't be read is a plain ground that says why. Any thread.
QImage drawFrameOrFailure(const CameraFrame& frame, const QSize& size);

/// The largest size with the sides of `resolution` that fits into `bounds`; empty when either is.
QSize fitInto(const QSize& bounds, const QSize& resolution);
