#include "SensorNoise.h"

#include "Camera.h"

#include <opencv2/core.hpp>

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
#include <random>
#include <vector>

namespace {

constexpr int Block = 1024;
/// Places at which a block of noise may begin, each way.
constexpr int Places = 256;
constexpr unsigned int Seed = 20;

/// Numbers up to `grain`, alike for the three colours, at some places; the byte beside the colours stays as it is.
cv::Mat makeNoise(int grain) {
    constexpr int OneIn = 16;
    const cv::Size size(Block + Places, Block + Places);
    cv::RNG random(Seed);
    cv::Mat chance(size, CV_8UC1);
    cv::Mat level(size, CV_8UC1);
    random.fill(chance, cv::RNG::UNIFORM, 0, OneIn);
    random.fill(level, cv::RNG::UNIFORM, 1, grain + 1);
    level.setTo(0, chance);
    cv::Mat noise;
    cv::merge(std::vector<cv::Mat>{level, level, level, cv::Mat::zeros(size, CV_8UC1)}, noise);
    return noise;
}

cv::Mat noiseOf(int grain) {
    static std::mutex mutex;
    static std::map<int, cv::Mat> made;
    const std::lock_guard lock(mutex);
    cv::Mat& noise = made[grain];
    if (noise.empty()) {
        noise = makeNoise(grain);
    }
    return noise;
}

cv::Mat pieceOf(const cv::Mat& noise, const cv::Size& size, std::minstd_rand& random) {
    const int x = int(random() % Places);
    const int y = int(random() % Places);
    return noise(cv::Rect(cv::Point(x, y), size));
}

void addGrain(QImage& picture, int grain, std::minstd_rand& random) {
    const cv::Mat noise = noiseOf(grain);
    cv::Mat pixels(picture.height(), picture.width(), CV_8UC4, picture.bits(), std::size_t(picture.bytesPerLine()));
    for (int y = 0; y < pixels.rows; y += Block) {
        for (int x = 0; x < pixels.cols; x += Block) {
            const cv::Size size(std::min(Block, pixels.cols - x), std::min(Block, pixels.rows - y));
            cv::Mat block = pixels(cv::Rect(cv::Point(x, y), size));
            cv::add(block, pieceOf(noise, size, random), block);
            cv::subtract(block, pieceOf(noise, size, random), block);
        }
    }
}

/// In a smaller picture a pixel of the sensor is but a part of one.
void brighten(QImage& picture, const QPoint& place, double part) {
    const QRgb seen = picture.pixel(place);
    const auto brighter = [part](int level) { return level + int(std::lround((255 - level) * part)); };
    picture.setPixel(place, qRgb(brighter(qRed(seen)), brighter(qGreen(seen)), brighter(qBlue(seen))));
}

}  // namespace

SensorNoise SensorNoise::of(const Camera& camera) {
    const QByteArray address = camera.address().toLatin1();
    return {camera.model().grain, camera.model().hotPixels, qChecksum(address.constData(), uint(address.size()))};
}

void SensorNoise::addTo(QImage& picture, const QSize& resolution, qint64 frame) const {
    if (grain > 0) {
        std::minstd_rand random(static_cast<unsigned int>(quint64(sensor) * 31 + quint64(frame)));
        random.discard(2);
        addGrain(picture, grain, random);
    }
    const double part = std::min(1.0, double(picture.width()) * picture.height() /
                                          std::max(1.0, double(resolution.width()) * resolution.height()));
    std::minstd_rand places(sensor);
    for (int pixel = 0; pixel < hotPixels; ++pixel) {
        // As fractions of the picture, which may be drawn at another size than the sensor's.
        const double x = double(places()) / std::minstd_rand::max();
        const double y = double(places()) / std::minstd_rand::max();
        brighten(picture,
                 {std::min(int(x * picture.width()), picture.width() - 1),
                  std::min(int(y * picture.height()), picture.height() - 1)},
                 part);
    }
}
