#include "CameraModel.h"
#include "FramePicture.h"
#include "PlainState.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

using Channels = std::array<int, 3>;
/// What becomes of a pixel; `at` answers the picture's own pixels, those beyond its edges too.
using Reckoning = std::function<Channels(int x, int y, const std::function<Channels(int, int)>& at)>;

constexpr QSize Sensor{61, 47};

Channels channelsOf(QRgb colour) {
    return {qRed(colour), qGreen(colour), qBlue(colour)};
}

Channels eachChannel(const std::function<int(std::size_t)>& value) {
    return {value(0), value(1), value(2)};
}

int level(double value) {
    return int(std::nearbyint(std::clamp(value, 0.0, 255.0)));
}

Reckoning median(int size) {
    return [size](int x, int y, const auto& at) {
        return eachChannel([&](std::size_t channel) {
            std::vector<int> values;
            for (int dy = -size / 2; dy <= size / 2; ++dy) {
                for (int dx = -size / 2; dx <= size / 2; ++dx) {
                    values.push_back(at(x + dx, y + dy)[channel]);
                }
            }
            std::sort(values.begin(), values.end());
            return values[values.size() / 2];
        });
    };
}

Reckoning sharpen(double strength) {
    return [strength](int x, int y, const auto& at) {
        return eachChannel([&](std::size_t channel) {
            const int around =
                at(x - 1, y)[channel] + at(x + 1, y)[channel] + at(x, y - 1)[channel] + at(x, y + 1)[channel];
            return level((1 + 4 * strength) * at(x, y)[channel] - strength * around);
        });
    };
}

Channels mosaic(int x, int y, const std::function<Channels(int, int)>& at) {
    constexpr int Square = 8;
    return eachChannel([&](std::size_t channel) {
        double sum = 0;
        int pixels = 0;
        for (int row = y / Square * Square; row < std::min(y / Square * Square + Square, Sensor.height()); ++row) {
            for (int column = x / Square * Square; column < std::min(x / Square * Square + Square, Sensor.width());
                 ++column) {
                sum += at(column, row)[channel];
                ++pixels;
            }
        }
        return level(sum / pixels);
    });
}

bool isOpaque(const QImage& picture) {
    const auto* pixels = reinterpret_cast<const QRgb*>(picture.constBits());
    return std::all_of(pixels, pixels + std::ptrdiff_t(picture.width()) * picture.height(),
                       [](QRgb colour) { return qAlpha(colour) == 255; });
}

CameraFrame frameOf(const QString& plugin, const QVariantMap& values, int mode) {
    CameraState state;
    state.effectivePlugins = QStringList{plugin};
    state.pluginValues = {{plugin, values}};
    return {"Gate", Sensor, 12, 12000, {40, 30, 1}, effectsOf(state, mode)};
}

/// By another reckoning of the same picture.
TEST(ImageEffects, MakeOfPixelsAndTheirNeighboursWhatTheyAreToMake) {
    struct Case {
        QString plugin;
        QVariantMap values;
        Reckoning reckoning;
    };
    const QImage plain = drawFrame(frameOf({}, {}, zeb::MemoryMode), Sensor);
    const auto at = [&plain](int x, int y) {
        return channelsOf(plain.pixel(std::clamp(x, 0, plain.width() - 1), std::clamp(y, 0, plain.height() - 1)));
    };
    for (const Case& row : {Case{"filter", {{"median", 3}, {"sharpen", 0}}, median(3)},
                            Case{"filter", {{"median", 5}, {"sharpen", 0}}, median(5)}, Case{"filter", {}, sharpen(1)},
                            Case{"filter", {{"sharpen", 50}}, sharpen(0.5)}, Case{"mosaic", {{"square", 8}}, mosaic}}) {
        const QImage made = drawFrame(frameOf(row.plugin, row.values, zeb::MemoryMode), Sensor);
        QImage reckoned(Sensor, QImage::Format_RGB32);
        for (int y = 0; y < Sensor.height(); ++y) {
            for (int x = 0; x < Sensor.width(); ++x) {
                const Channels pixel = row.reckoning(x, y, at);
                reckoned.setPixel(x, y, qRgb(pixel[0], pixel[1], pixel[2]));
            }
        }
        EXPECT_EQ(made, reckoned) << row.plugin.toStdString();
        EXPECT_NE(made, plain) << row.plugin.toStdString();
        EXPECT_TRUE(isOpaque(made)) << row.plugin.toStdString();
    }
}

TEST(ImageEffects, MakeOfColoursOtherOnes) {
    const struct {
        const char* plugin;
        QVector<int> values;
        QVector<QRgb> before;
        QVector<QRgb> after;
    } rows[] = {
        {"lut",
         {40, 160, 200},
         {qRgb(40, 70, 100), qRgb(160, 200, 30), qRgb(41, 0, 255)},
         {qRgb(0, 128, 180), qRgb(255, 255, 0), qRgb(23, 0, 255)}},
        {"lut", {100, 50, 100}, {qRgb(99, 100, 101)}, {qRgb(0, 0, 255)}},
        {"pseudo",
         {1},
         {qRgb(60, 60, 60), qRgb(255, 0, 0), qRgb(200, 200, 200)},
         {qRgb(180, 0, 0), qRgb(255, 6, 0), qRgb(255, 255, 90)}},
        {"pseudo",
         {2},
         {qRgb(0, 0, 0), qRgb(85, 85, 85), qRgb(255, 255, 255)},
         {qRgb(0, 0, 255), qRgb(0, 255, 170), qRgb(255, 0, 0)}},
    };
    for (const auto& row : rows) {
        QImage picture(row.before.size(), 1, QImage::Format_RGB32);
        std::copy(row.before.begin(), row.before.end(), reinterpret_cast<QRgb*>(picture.bits()));
        findImageEffect(row.plugin)->apply(picture, row.values);
        const auto* made = reinterpret_cast<const QRgb*>(picture.constBits());
        EXPECT_EQ(QVector<QRgb>(made, made + row.after.size()), row.after) << row.plugin << row.values[0];
    }
}

TEST(ImageEffects, AreThoseOfTheModeAndOneAfterTheOther) {
    EXPECT_TRUE(frameOf("mosaic", {}, zeb::LiveMode).effects.isEmpty()) << "of recorded images only";
    EXPECT_TRUE(frameOf("unheardof", {}, zeb::MemoryMode).effects.isEmpty());
    CameraState state;
    state.effectivePlugins = QStringList{"pseudo", "filter"};
    CameraFrame both{"Gate", Sensor, 12, 12000, {40, 30, 1}, effectsOf(state, zeb::LiveMode)};
    QImage filtered = drawFrame(frameOf("filter", {}, zeb::LiveMode), Sensor);
    findImageEffect("pseudo")->apply(filtered, {1});
    EXPECT_EQ(drawFrame(both, Sensor), filtered);
    both.effects.remove(1);
    EXPECT_EQ(drawFrame(both, Sensor / 2),
              drawFrame(both, Sensor).scaled(Sensor / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation))
        << "of what the camera sees, not of what the window shows";
}

TEST(SensorNoise, IsTheSameForTheSameFrame) {
    const auto with = [](SensorNoise noise, qint64 number) {
        return drawFrame({"Gate", Sensor, number, 0, noise, {}}, Sensor);
    };
    EXPECT_EQ(with({9, 5, 1}, 12), with({9, 5, 1}, 12));
    int farthest = 0;
    int hot = 0;
    const QImage clean = with({0, 0, 1}, 12);
    const QImage grainy = with({9, 0, 1}, 12);
    const QImage spotted = with({0, 5, 1}, 12);
    for (int y = 0; y < Sensor.height(); ++y) {
        for (int x = 0; x < Sensor.width(); ++x) {
            farthest = std::max(farthest, std::abs(qRed(grainy.pixel(x, y)) - qRed(clean.pixel(x, y))));
            hot += spotted.pixel(x, y) != clean.pixel(x, y) ? 1 : 0;
        }
    }
    EXPECT_GT(farthest, 4);
    EXPECT_LE(farthest, 9);
    EXPECT_EQ(hot, 5);
}

TEST(ImageEffects, TakeOnlyNumbersThatCanBe) {
    CameraState state;
    state.pluginValues = {{"lut", QVariantMap{{"black", 10}, {"gamma", 220.0}}}};
    EXPECT_NO_THROW(checkPluginValues(state));
    for (const QVariantMap& values :
         {QVariantMap{{"lut", 5}}, QVariantMap{{"unheardof", QVariantMap{}}},
          QVariantMap{{"lut", QVariantMap{{"black", 1e300}}}}, QVariantMap{{"lut", QVariantMap{{"black", "10"}}}},
          QVariantMap{{"filter", QVariantMap{{"median", 4}}}}, QVariantMap{{"filter", QVariantMap{{"blur", 1}}}},
          QVariantMap{{"mosaic", QVariantMap{{"square", 0}}}}}) {
        state.pluginValues = values;
        EXPECT_THROW(checkPluginValues(state), StateError) << values.firstKey().toStdString();
        const QString plugin = values.firstKey();
        const auto drawn = [&](const QVariantMap& numbers) {
            return drawFrame(frameOf(plugin, numbers, zeb::MemoryMode), Sensor);
        };
        EXPECT_EQ(drawn(values.first().toMap()), drawn({})) << "such a number counts as the first one";
    }
    EXPECT_TRUE(drawFrame(frameOf("filter", {}, zeb::MemoryMode), QSize()).isNull());
}

}  // namespace
