#include "SaveTexts.h"

#include "LastShoot.h"
#include "SaveJob.h"
#include "UiText.h"

#include <QDir>
#include <QLocale>

QString outcomeText(const SaveOutcome& outcome, const SaveOrders& orders) {
    const QString& name = outcome.name;
    const QString saved = QString::number(outcome.saved);
    const QString left = QString::number(outcome.frames - outcome.saved);
    switch (outcome.end) {
        case SaveOutcome::Absent:
            return outcome.reason;
        case SaveOutcome::Saved:
            return uiText("%1: %2 frames saved in %3").arg(name, saved, QDir::toNativeSeparators(orders.folder));
        case SaveOutcome::CameraLost:
            if (outcome.saved == 0) {
                return uiText("%1: camera lost before its first frame, %2 frames not saved (%3)")
                    .arg(name, left, uiText(outcome.reason));
            }
            return uiText("%1: camera lost after frame %2, %3 frames not saved (%4)")
                .arg(name, QString::number(outcome.lastNumber), left, uiText(outcome.reason));
        case SaveOutcome::FileFailed:
            return uiText("%1: %2 can't be written, %3 frames not saved (%4)")
                .arg(name, QDir::toNativeSeparators(outcome.file), left, uiText(outcome.reason));
        case SaveOutcome::Skipped:
            return uiText("%1: skipped, %2 frames saved, %3 not").arg(name, saved, left);
        case SaveOutcome::Cancelled:
            break;
    }
    return uiText("%1: cancelled, %2 frames saved, %3 not").arg(name, saved, left);
}

QString absentText(const AbsentCamera& camera) {
    if (camera.why == AbsentCamera::OtherPartition) {
        return uiText("%1: the last recording lies in partition %2. It is not saved.")
            .arg(camera.name, QString::number(camera.partition));
    }
    const QString text = camera.why == AbsentCamera::Gone ? uiText("%1: the camera has disappeared.")
                                                          : uiText("%1: the camera was disconnected.");
    return text.arg(camera.name) % QLatin1Char(' ') % uiText("Its recording is not saved.");
}

QString refusalText(const SaveRefusal& refusal, const SaveOrders& orders) {
    const QString folder = QDir::toNativeSeparators(orders.folder);
    if (refusal.needed < 0) {
        return uiText("There can't be a folder %1.").arg(folder);
    }
    const QLocale locale;
    return uiText("There is not enough space in %1: %2 are needed, %3 are free.")
        .arg(folder, locale.formattedDataSize(refusal.needed), locale.formattedDataSize(refusal.available));
}
