#include "ImageEffects.h"

#include "CameraState.h"
#include "PlainState.h"
#include "TextKey.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int EveryMode = 1 << zeb::LiveMode | 1 << zeb::MemoryMode | 1 << zeb::FileMode;
constexpr int Levels = 256;

cv::Mat viewOf(QImage& picture) {
    // Cameras are worked on side by side; a filter of its own threads would only take turns with them.
    static const bool single = [] {
        cv::setNumThreads(1);
        return true;
    }();
    Q_UNUSED(single)
    return {picture.height(), picture.width(), CV_8UC4, picture.bits(), std::size_t(picture.bytesPerLine())};
}

template <typename Change>
void changePixels(QImage& picture, const Change& change) {
    for (int y = 0; y < picture.height(); ++y) {
        auto* pixel = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::transform(pixel, pixel + picture.width(), pixel, change);
    }
}

/// Black and white level, and the exponent in hundredths. A white level that is not above black leaves two colours.
void applyLevels(QImage& picture, const QVector<int>& values) {
    std::array<unsigned char, Levels> curve{};
    const double span = std::max(1, values[1] - values[0]);
    for (int level = 0; level < Levels; ++level) {
        const double part = std::clamp((level - values[0]) / span, 0.0, 1.0);
        curve[std::size_t(level)] = static_cast<unsigned char>(std::lround(255 * std::pow(part, 100.0 / values[2])));
    }
    changePixels(picture, [&curve](QRgb colour) {
        return qRgb(curve[std::size_t(qRed(colour))], curve[std::size_t(qGreen(colour))],
                    curve[std::size_t(qBlue(colour))]);
    });
}

/// First the median, of that many pixels each way, then the sharpening, in percent.
void applyFilter(QImage& picture, const QVector<int>& values) {
    // New memory for each picture takes longer than the filters do.
    thread_local cv::Mat colours;
    thread_local cv::Mat filtered;
    cv::Mat pixels = viewOf(picture);
    cv::cvtColor(pixels, colours, cv::COLOR_BGRA2BGR);
    if (values[0] > 1) {
        cv::medianBlur(colours, filtered, values[0]);
        cv::swap(colours, filtered);
    }
    if (values[1] > 0) {
        const float side = -float(values[1]) / 100;
        const cv::Mat kernel = (cv::Mat_<float>(3, 3) << 0, side, 0, side, 1 - 4 * side, side, 0, side, 0);
        cv::filter2D(colours, filtered, -1, kernel, cv::Point(-1, -1), 0, cv::BORDER_REPLICATE);
        cv::swap(colours, filtered);
    }
    cv::cvtColor(colours, pixels, cv::COLOR_BGR2BGRA);
}

QRgb heat(int level) {
    const auto channel = [level](int from) { return std::clamp(3 * (level - from), 0, 255); };
    return qRgb(channel(0), channel(85), channel(170));
}

QRgb rainbow(int level) {
    constexpr double Blue = 2.0 / 3;
    return QColor::fromHsvF(Blue * (255 - level) / 255, 1, 1).rgb();
}

/// Brightness as a colour: of glowing iron, or of the rainbow from blue to red.
void applyFalseColours(QImage& picture, const QVector<int>& values) {
    std::array<QRgb, Levels> palette{};
    for (int level = 0; level < Levels; ++level) {
        palette[std::size_t(level)] = (values[0] == 1 ? heat : rainbow)(level);
    }
    changePixels(picture, [&palette](QRgb colour) { return palette[std::size_t(qGray(colour))]; });
}

/// The mean colour of a square of a picture.
QRgb meanOf(const QImage& picture, const QRect& square) {
    int red = 0;
    int green = 0;
    int blue = 0;
    for (int y = square.top(); y <= square.bottom(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = square.left(); x <= square.right(); ++x) {
            red += qRed(row[x]);
            green += qGreen(row[x]);
            blue += qBlue(row[x]);
        }
    }
    const double pixels = double(square.width()) * square.height();
    return qRgb(int(std::nearbyint(red / pixels)), int(std::nearbyint(green / pixels)),
                int(std::nearbyint(blue / pixels)));
}

/// Squares of that many pixels each way, of one colour each.
void applyMosaic(QImage& picture, const QVector<int>& values) {
    const int side = values[0];
    for (int top = 0; top < picture.height(); top += side) {
        for (int left = 0; left < picture.width(); left += side) {
            const QRect square = QRect(left, top, side, side) & picture.rect();
            const QRgb colour = meanOf(picture, square);
            for (int y = square.top(); y <= square.bottom(); ++y) {
                auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
                std::fill_n(row + left, square.width(), colour);
            }
        }
    }
}

QString whyNot(const EffectNumber& number, const QVariant& value) {
    bool isNumber = false;
    const double asked = value.toDouble(&isNumber);
    const bool fits = isNumber && value.type() != QVariant::String && value.type() != QVariant::Bool &&
                      asked >= number.lowest && asked <= number.highest && asked == std::floor(asked) &&
                      (int(asked) - number.lowest) % number.step == 0;
    return fits ? QString()
                : QStringLiteral("\"%1\" is a whole number from %2 to %3 in steps of %4")
                      .arg(number.name)
                      .arg(number.lowest)
                      .arg(number.highest)
                      .arg(number.step);
}

}  // namespace

const QList<ImageEffect>& imageEffects() {
    static const QList<ImageEffect> effects{{QStringLiteral("filter"),
                                             TextKey("p_filter"),
                                             EveryMode,
                                             true,
                                             true,
                                             {{QStringLiteral("median"), TextKey("Median (pixels)"), 1, 5, 1, 2},
                                              {QStringLiteral("sharpen"), TextKey("Sharpen (%)"), 0, 200, 100, 1}},
                                             applyFilter},
                                            {QStringLiteral("mosaic"),
                                             TextKey("p_mosaic"),
                                             1 << zeb::MemoryMode,
                                             true,
                                             true,
                                             {{QStringLiteral("square"), TextKey("Square (pixels)"), 2, 64, 16, 1}},
                                             applyMosaic},
                                            {QStringLiteral("lut"),
                                             TextKey("p_lut"),
                                             EveryMode,
                                             false,
                                             false,
                                             {{QStringLiteral("black"), TextKey("Black level"), 0, 254, 0, 1},
                                              {QStringLiteral("white"), TextKey("White level"), 1, 255, 255, 1},
                                              {QStringLiteral("gamma"), TextKey("Gamma (1/100)"), 10, 500, 100, 1}},
                                             applyLevels},
                                            {QStringLiteral("pseudo"),
                                             TextKey("p_pseudo"),
                                             EveryMode,
                                             false,
                                             false,
                                             {{QStringLiteral("palette"), TextKey("Palette"), 1, 2, 1, 1}},
                                             applyFalseColours}};
    return effects;
}

const ImageEffect* findImageEffect(const QString& name) {
    const QList<ImageEffect>& effects = imageEffects();
    const auto found = std::find_if(effects.begin(), effects.end(),
                                    [&name](const ImageEffect& effect) { return effect.name == name; });
    return found == effects.end() ? nullptr : &*found;
}

QVector<int> ImageEffect::valuesOf(const CameraState& state) const {
    const QVariantMap stored = state.pluginValues.value(name).toMap();
    QVector<int> values;
    for (const EffectNumber& number : numbers) {
        const QVariant value = stored.value(number.name, number.initial);
        values.append(whyNot(number, value).isEmpty() ? value.toInt() : number.initial);
    }
    return values;
}

QVariantMap ImageEffect::plain(const QVector<int>& values) const {
    QVariantMap members;
    for (int i = 0; i < numbers.size(); ++i) {
        members.insert(numbers[i].name, values[i]);
    }
    return members;
}

bool seesNeighbours(const FrameEffects& effects) {
    return std::any_of(effects.begin(), effects.end(), [](const auto& effect) { return effect.first->seesNeighbours; });
}

FrameEffects effectsOf(const CameraState& state, int mode) {
    FrameEffects effects;
    if (!state.effectivePlugins.isEmpty()) {
        for (const ImageEffect& effect : imageEffects()) {
            if ((effect.modes >> mode & 1) != 0 && state.effectivePlugins.contains(effect.name)) {
                effects.append({&effect, effect.valuesOf(state)});
            }
        }
    }
    return effects;
}

void checkPluginValues(const CameraState& state) {
    const auto fail = [](const QString& reason) { throw StateError{QStringLiteral("pluginValues"), reason}; };
    for (auto plugin = state.pluginValues.begin(); plugin != state.pluginValues.end(); ++plugin) {
        const ImageEffect* effect = findImageEffect(plugin.key());
        if (effect == nullptr || plugin.value().type() != QVariant::Map) {
            fail(QStringLiteral("there is no image plug-in \"%1\" with numbers").arg(plugin.key()));
        }
        QVariantMap numbers = plugin.value().toMap();
        for (const EffectNumber& number : effect->numbers) {
            const QVariant value = numbers.take(number.name);
            const QString reason = value.isValid() ? whyNot(number, value) : QString();
            if (!reason.isEmpty()) {
                fail(reason);
            }
        }
        if (!numbers.isEmpty()) {
            fail(QStringLiteral("\"%1\" has no number \"%2\"").arg(plugin.key(), numbers.firstKey()));
        }
    }
}
