#include "VideoFormats.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double SlowestRate = 0.1;
constexpr double FastestRate = 1'000'000;
constexpr int MostCrf = 51;
/// The program's own scale, from the best to the worst.
constexpr int BestScale = 2;
constexpr int WorstScale = 31;
/// Between frames little changes.
constexpr int FramesInSizeOfOne = 4;

const QStringList& presets() {
    static const QStringList words = {"ultrafast", "superfast", "veryfast", "faster",   "fast",
                                      "medium",    "slow",      "slower",   "veryslow", "placebo"};
    return words;
}

int inRange(const QVariant& value, int most, int otherwise) {
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    return isNumber && number >= 0 && number <= most ? number : otherwise;
}

}  // namespace

const QList<VideoCodec>& videoCodecs() {
    static const QList<VideoCodec> codecs = {
        {"RAW", "rawvideo", "bgr24", VideoCodec::Whole},     {"H264", "libx264", "yuv420p", VideoCodec::ByFactor},
        {"MJPEG", "mjpeg", "yuvj420p", VideoCodec::ByScale}, {"MPEG2", "mpeg2video", "yuv420p", VideoCodec::ByScale},
        {"MPEG4", "mpeg4", "yuv420p", VideoCodec::ByScale},  {"HUFFYUV", "huffyuv", "rgb24", VideoCodec::Whole}};
    return codecs;
}

VideoCodec VideoOptions::used() const {
    const auto& codecs = videoCodecs();
    auto found = std::find_if(codecs.begin(), codecs.end(), [this](const auto& one) { return one.name == codec; });
    VideoCodec own = found == codecs.end() ? codecs.at(1) : *found;
    if (isLossless && own.quality == VideoCodec::ByFactor) {
        own.encoder = QStringLiteral("libx264rgb");
        own.pixels = QStringLiteral("bgr24");
    }
    return own;
}

QStringList VideoOptions::arguments(const QString& container) const {
    const VideoCodec own = used();
    QStringList arguments{"-c:v", own.encoder};
    if (own.quality == VideoCodec::ByScale) {
        const double scale = WorstScale - (WorstScale - BestScale) * quality / 100.0;
        arguments << QStringLiteral("-q:v") << QString::number(qRound(scale));
    } else if (own.quality == VideoCodec::ByFactor) {
        arguments << QStringLiteral("-preset") << preset;
        arguments << (isLossless ? QStringLiteral("-qp") : QStringLiteral("-crf"));
        arguments << (isLossless ? QStringLiteral("0") : QString::number(crf));
    }
    if (own.pixels == QLatin1String("yuv420p")) {
        // Colours are stored for two by two pixels, so sides must be even.
        arguments << QStringLiteral("-vf") << QStringLiteral("pad=ceil(iw/2)*2:ceil(ih/2)*2");
    }
    if (container != QLatin1String("avi")) {
        // Names that the format does not know are kept too.
        arguments << QStringLiteral("-movflags") << QStringLiteral("use_metadata_tags");
    }
    return arguments << QStringLiteral("-pix_fmt") << own.pixels << QStringLiteral("-f") << container;
}

QString VideoOptions::rateText() const {
    const double nominal = std::round(rate * 1.001);
    const bool isWhole = std::abs(rate - std::round(rate)) < 0.005;
    if (!isWhole && std::abs(nominal * 1000 / 1001 - rate) < 0.005) {
        return QString::number(qint64(nominal) * 1000) % QStringLiteral("/1001");
    }
    return QString::number(rate, 'f', 4);
}

qint64 VideoOptions::expectedSize(qint64 pixels, qint64 png, qint64 jpeg) const {
    const VideoCodec own = used();
    return own.quality == VideoCodec::Whole                    ? 3 * pixels
           : own.quality == VideoCodec::ByFactor && isLossless ? png
           : own.encoder == QLatin1String("mjpeg")             ? jpeg
                                                               : jpeg / FramesInSizeOfOne;
}

VideoOptions VideoOptions::chosen(const PrefReader& pref, const QString& family, const QString& container) {
    const auto option = [&](const char* suffix) {
        return pref(family % container % QLatin1Char('/') % QLatin1String(suffix));
    };
    VideoOptions options;
    // What is put in the place of an unknown word is what nobody has chosen.
    options.codec = container == QLatin1String("avi") ? QStringLiteral("MJPEG") : options.codec;
    const QString codec = option("codec").toString().toUpper();
    for (const VideoCodec& one : videoCodecs()) {
        options.codec = one.name == codec ? codec : options.codec;
    }
    const double rate = option("framerate").toDouble();
    options.rate = rate >= SlowestRate && rate <= FastestRate ? rate : UsualRate;
    options.crf = inRange(option("crf"), MostCrf, options.crf);
    options.quality = inRange(option("quality"), 100, options.quality);
    const QString preset = option("qualitypreset").toString();
    options.preset = presets().contains(preset) ? preset : options.preset;
    options.isLossless = option("lossless").toBool();
    return options;
}
