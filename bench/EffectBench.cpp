#include "EffectBench.h"

#include "CpuTime.h"
#include "FramePicture.h"
#include "Median.h"

namespace {

constexpr int Runs = 25;
constexpr QSize Sensor(1024, 1024);

double medianOf(const CameraFrame& frame) {
    QVector<double> times;
    for (int run = 0; run < Runs; ++run) {
        const double start = cpuTime();
        drawFrame(frame, Sensor);
        times.append(cpuTime() - start);
    }
    return median(times);
}

}  // namespace

QJsonObject EffectBench::run() {
    CameraFrame frame{QStringLiteral("Gate"), Sensor, 12, 12000, {2, 8, 1}, {}};
    QJsonObject numbers{{QStringLiteral("plain"), medianOf(frame)}};
    for (const ImageEffect& effect : imageEffects()) {
        QVector<int> values;
        for (const EffectNumber& number : effect.numbers) {
            values.append(number.initial);
        }
        frame.effects = {{&effect, values}};
        numbers.insert(effect.name, medianOf(frame));
    }
    frame.effects = {{findImageEffect(QStringLiteral("filter")), {3, 0}}};
    numbers.insert(QStringLiteral("median"), medianOf(frame));
    return numbers;
}
