#include "RecordProblems.h"

namespace {

void addOnce(QStringList& lines, const QString& line) {
    if (!lines.contains(line)) {
        lines.append(line);
    }
}

}  // namespace

QStringList problemLines(const QList<CameraAlerts>& cameras, const QString& signalText) {
    QStringList lines;
    for (const CameraAlerts& camera : cameras) {
        const auto line = [&camera](const QString& problem) -> QString {
            return camera.cameraName.isEmpty() ? problem : camera.cameraName % QStringLiteral("・・") % problem;
        };
        for (const QString& alert : camera.device) {
            addOnce(lines, line(alert));
        }
        if (camera.differsFromSignal) {
            addOnce(lines, line(signalText));
        }
        for (const QString& alert : camera.own) {
            if (!camera.device.contains(alert)) {
                lines.append(line(alert));
            }
        }
    }
    return lines;
}
