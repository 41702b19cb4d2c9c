#include "SaveTexts.h"

#include "LastShoot.h"
#include "SavePlan.h"
#include "SizeText.h"
#include "UiText.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString nativePath(const QString& path) {
    return QDir::toNativeSeparators(path);
}

QString folderOf(const SaveOrders& orders, int track) {
    return nativePath(QFileInfo(orders.tracks[std::size_t(track)].stem).path());
}

QString spaceText(const PlanEntry& entry) {
    return uiText("There is not enough space in %1: %2 are needed, %3 are free.")
        .arg(nativePath(entry.path), sizeText(entry.count), sizeText(entry.available));
}

}  // namespace

QString outcomeText(const SaveOutcome& outcome, const SaveOrders& orders) {
    const QString& name = outcome.name;
    const SaveTrack* track = outcome.track < 0 ? nullptr : &orders.tracks[std::size_t(outcome.track)];
    // Those that stood there before are saved too.
    const int all = outcome.saved + (track ? track->from : 0);
    const QString saved = QString::number(all);
    const QString left = QString::number(outcome.frames - outcome.saved);
    switch (outcome.end) {
        case SaveOutcome::Absent:
            return outcome.reason;
        case SaveOutcome::Saved:
            return uiText("%1: %2 frames saved in %3").arg(name, saved, folderOf(orders, outcome.track));
        case SaveOutcome::CameraLost:
            if (track && track->sources.front().isFile()) {
                return uiText("%1: read up to %2 of %3 frames, %4 not saved (%5)")
                    .arg(name, saved, QString::number(track->frames()), left, uiText(outcome.reason));
            }
            if (all == 0) {
                return uiText("%1: camera lost before its first frame, %2 frames not saved (%3)")
                    .arg(name, left, uiText(outcome.reason));
            }
            return uiText("%1: camera lost after frame %2, %3 frames not saved (%4)")
                .arg(name, QString::number(track ? track->number(all - 1) : outcome.lastNumber), left,
                     uiText(outcome.reason));
        case SaveOutcome::FileFailed:
            if (outcome.saved == outcome.frames) {
                return uiText("%1: all images are saved, but %2 can't be written (%3)")
                    .arg(name, QDir::toNativeSeparators(outcome.file), uiText(outcome.reason));
            }
            return uiText("%1: %2 can't be written, %3 frames not saved (%4)")
                .arg(name, QDir::toNativeSeparators(outcome.file), left, uiText(outcome.reason));
        case SaveOutcome::Cancelled:
            break;
    }
    return uiText("%1: cancelled, %2 frames saved, %3 not").arg(name, saved, left);
}

QString absentText(const AbsentCamera& camera) {
    const QString text = camera.why == AbsentCamera::Gone ? uiText("%1: the camera has disappeared.")
                                                          : uiText("%1: the camera was disconnected.");
    return text.arg(camera.name) % QLatin1Char(' ') % uiText("Its recording is not saved.");
}

QString leftOutText(const PlanEntry& entry) {
    return uiText("%1: not saved (%2)").arg(entry.camera, uiText(entry.detail));
}

QString entryText(const PlanEntry& entry) {
    const QString path = nativePath(entry.path);
    switch (entry.kind) {
        case PlanEntry::FolderIsMade:
            return uiText("The folder %1 is made.").arg(path);
        case PlanEntry::FolderHoldsFiles:
            return uiText("Files and folders that are in %1 already: %2").arg(path, QString::number(entry.count));
        case PlanEntry::Exists:
            return uiText("%1: %2 files exist already and are replaced, the first is %3")
                .arg(entry.camera, QString::number(entry.count), path);
        case PlanEntry::LeftOut:
            return leftOutText(entry);
        case PlanEntry::WrittenTwice:
            return uiText("%1 and %2 would both write %3").arg(entry.detail, entry.camera, path);
        case PlanEntry::Forbidden:
            return uiText("%1: %2 \"%3\" is no name. Not allowed are %4 and control characters")
                .arg(entry.camera, uiText(entry.detail), entry.path, QStringLiteral("\\ / : * ? | \" < > %"));
        case PlanEntry::PathTooLong:
            return uiText("%1: %2 (%3)").arg(entry.camera, uiText("The path of the target is too long."), path);
        case PlanEntry::NoFolder:
            return uiText("%1: %2").arg(entry.camera, path.isEmpty() ? uiText("No folder is chosen.")
                                                                     : uiText("There can't be a folder %1.").arg(path));
        case PlanEntry::ReadOnly:
            return uiText("%1: %2").arg(entry.camera, uiText("Nothing can be written into %1.").arg(path));
        case PlanEntry::NoSpace:
            return spaceText(entry);
        case PlanEntry::NoFile:
            return uiText("%1: %2 is there and is no file that could be replaced").arg(entry.camera, path);
        case PlanEntry::IsOpen:
            return uiText("%1: %2 is of a recording that is open, and can't be replaced").arg(entry.camera, path);
        case PlanEntry::NoName:
            return uiText("%1: %2").arg(entry.camera, uiText(entry.detail));
        case PlanEntry::NoFormat:
            return entry.detail;
    }
    return {};
}

QString plannedText(const SavePlan& plan, std::size_t track) {
    const SaveOrders& orders = plan.orders;
    return uiText("%1: %2 files, about %3, in %4")
        .arg(orders.tracks[track].name, QString::number(orders.filesOf(orders.tracks[track])),
             sizeText(plan.bytes[track]), folderOf(orders, int(track)));
}
