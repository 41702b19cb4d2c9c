#include "BridgeCall.h"
#include "JS_Mediator_FileDialog.h"
#include "SizeText.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMedia.h"

/// With its name, if it is there.
zeb::Medium JS_Mediator_FileDialog::foundMedium(int kind, ulong type, ulong drive, ulong slot) const {
    const zeb::Medium wanted{int(type), int(drive), int(slot), {}};
    for (const zeb::Medium& medium : host().docManager().media().getMedia(kind)) {
        if (zeb::isSamePlace(medium, wanted)) {
            return medium;
        }
    }
    return wanted;
}

/// In whatever slot.
zeb::Medium JS_Mediator_FileDialog::quikDrive(int type, int drive) const {
    for (const zeb::Medium& medium : host().docManager().media().getMedia(zeb::QuikDrive)) {
        if (medium.type == type && medium.drive == drive) {
            return medium;
        }
    }
    return {type, drive, 0, {}};
}

QString JS_Mediator_FileDialog::useRatio(int kind, ulong type, ulong drive, ulong slot) const {
    constexpr double Percent = 100;
    const zeb::MediumUse use = host().docManager().media().getMediumUse(kind, foundMedium(kind, type, drive, slot));
    const double ratio = use.capacity > 0 ? Percent * double(use.used) / double(use.capacity) : 0;
    return QString::number(ratio, 'f', 1) % QLatin1Char('%');
}

QString JS_Mediator_FileDialog::getFDUseRatio(ulong type, ulong driveNo, ulong slotNo) {
    return call(*this, TracedQuery, __func__, {}, [&] { return useRatio(zeb::QuikDrive, type, driveNo, slotNo); });
}

QString JS_Mediator_FileDialog::getCFUseRatio(ulong type, ulong driveNo, ulong slotNo) {
    return call(*this, TracedQuery, __func__, {}, [&] { return useRatio(zeb::CFast, type, driveNo, slotNo); });
}

QString JS_Mediator_FileDialog::getTotalWrittenAmount(ulong type, ulong driveNo, ulong slotNo) {
    return call(*this, TracedQuery, __func__, {}, [&] {
        const zeb::Medium medium = foundMedium(zeb::QuikDrive, type, driveNo, slotNo);
        return sizeText(host().docManager().media().getMediumUse(zeb::QuikDrive, medium).written);
    });
}

void JS_Mediator_FileDialog::format(int kind, ulong type, ulong drive, ulong slot) {
    if (host().docManager().media().formatMedium(kind, foundMedium(kind, type, drive, slot))) {
        host().info(host().translate(TextKey("Formatting is completed.")), nullptr);
    } else {
        host().alert(host().translate(TextKey("Formatting failed.")), nullptr);
    }
}

void JS_Mediator_FileDialog::formatQuikDrive(ulong type, ulong driveNo, ulong slotNo) {
    call(*this, Change, __func__, {{"driveNo", qulonglong(driveNo)}, {"slotNo", qulonglong(slotNo)}},
         [&] { format(zeb::QuikDrive, type, driveNo, slotNo); });
}

void JS_Mediator_FileDialog::formatCFast(ulong type, ulong driveNo, ulong slotNo) {
    call(*this, Change, __func__, {{"driveNo", qulonglong(driveNo)}, {"slotNo", qulonglong(slotNo)}},
         [&] { format(zeb::CFast, type, driveNo, slotNo); });
}

void JS_Mediator_FileDialog::setQuikDrivePassword(int fdType, int driveNo) {
    call(*this, Change, __func__, {{"driveNo", driveNo}}, [&] {
        const zeb::Medium medium = quikDrive(fdType, driveNo);
        const auto isSet = host().docManager().media().setMediumPassword(zeb::QuikDrive, medium);
        if (isSet == true) {
            host().warn(host().translate(TextKey("Password setting completed..")), nullptr);
        } else if (isSet == false) {
            host().alert(host().translate(TextKey("Password setting failed.")), nullptr);
        }
    });
}

bool JS_Mediator_FileDialog::existSetQuikDrivePassword(int fdType, int driveNo) {
    return call(*this, TracedQuery, __func__, {{"driveNo", driveNo}}, [&] {
        const zeb::Medium medium = quikDrive(fdType, driveNo);
        return host().docManager().media().hasMediumPassword(zeb::QuikDrive, medium);
    });
}
