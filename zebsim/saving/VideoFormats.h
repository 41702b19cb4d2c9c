#pragma once

#include "NameFamilies.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A codec of videos, and what it is to the program that makes them.
struct VideoCodec {
    enum Quality { Whole, ByFactor, ByScale };

    /// As the preferences hold it.
    QString name;
    QString encoder;
    /// The form of its pixels.
    QString pixels;
    /// Nothing is lost; H.264's own factor; a scale.
    Quality quality = Whole;
};

/// Raw, H264, MJPEG, MPEG2, MPEG4, HUFFYUV.
const QList<VideoCodec>& videoCodecs();

/// How a video is written. What a codec does not have is passed over.
struct VideoOptions {
    QString codec = QStringLiteral("H264");
    /// Frames that it shows in a second, whatever rate they were recorded at.
    double rate = UsualRate;
    /// Of H264: 0 to 51, the lower the better, and the word for how much time that may take.
    int crf = 18;
    QString preset = QStringLiteral("medium");
    /// Of H264: colours stay as they are; no factor then.
    bool isLossless = false;
    /// Of the codecs that have a scale: 0 to 100, the higher the better.
    int quality = 90;

    static constexpr double UsualRate = 30;

    /// The codec, with what a lossless video asks of it. A name of none is H264.
    VideoCodec used() const;
    /// For the program: what a file of the format `container`, as "mp4", is made with.
    QStringList arguments(const QString& container) const;
    /// As the program reads it; 29.97 and its like are fractions.
    QString rateText() const;
    /// On average, of frames of so many pixels, of which one takes so much as a PNG and as a JPEG file.
    qint64 expectedSize(qint64 pixels, qint64 png, qint64 jpeg) const;

    /// As the preferences of `family`, as "export/", choose for that format.
    static VideoOptions chosen(const PrefReader& pref, const QString& family, const QString& container);
};
