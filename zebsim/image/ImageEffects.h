#pragma once

#include "ZebTypes.h"

#include <QImage>
#include <QList>
#include <QPair>
#include <QString>
#include <QVariantMap>
#include <QVector>

struct CameraState;

/// A number of an effect, with what it may be.
struct EffectNumber {
    QString name;
    /// Key of the text that stands beside it.
    QString text;
    int lowest;
    int highest;
    int initial;
    /// Between two values that it can have, counted from the lowest.
    int step;
};

/// What an image plug-in does to pictures.
struct ImageEffect {
    /// That of the plug-in.
    QString name;
    /// Key of its title.
    QString title;
    /// Bit 0 live, bit 1 memory, bit 2 file.
    int modes;
    /// Its numbers take effect only when the user presses OK.
    bool needsOk;
    /// A pixel depends on those around it, so that pictures of other sizes than the camera's would become others.
    bool seesNeighbours;
    QList<EffectNumber> numbers;
    /// Of a picture of the format RGB32, with a value for each number. Any thread.
    void (*apply)(QImage& picture, const QVector<int>& values);

    /// A value for each number: those of the camera, and the initial one of what it does not tell or can't be.
    QVector<int> valuesOf(const CameraState& state) const;
    /// As a camera keeps them.
    QVariantMap plain(const QVector<int>& values) const;
};

/// All that there are, in the order in which they work on a picture.
const QList<ImageEffect>& imageEffects();
/// Null when there is none of that name.
const ImageEffect* findImageEffect(const QString& name);

/// Effects with their values, as they work on a picture.
using FrameEffects = QVector<QPair<const ImageEffect*, QVector<int>>>;

/// Whether a picture with them must be drawn at the camera's resolution.
bool seesNeighbours(const FrameEffects& effects);

/// Those that work on the camera's images in a `zeb::OperatingMode`.
FrameEffects effectsOf(const CameraState& state, int mode);

/// Throws `StateError` when the numbers of the camera's plug-ins can't be.
void checkPluginValues(const CameraState& state);
