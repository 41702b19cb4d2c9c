#include "BridgeCall.h"
#include "JS_Mediator_FileDialog.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMedia.h"

void JS_Mediator_FileDialog::selectSDDrive(int recid) {
    call(*this, Change, __func__, {{"recid", recid}}, [&] {
        const QList<int> drives = m_driveNames.keys();
        if (recid < 0 || recid >= drives.size()) {
            return;
        }
        ZebDocManager& docs = host().docManager();
        const int drive = drives.at(recid);
        int open = -1;
        if (docs.getOpenSdDrive(open) && open != drive) {
            const QString question = TextKey(
                "Multiple SD cards can not be opened at the same time. Are you sure you want to close all data of %1?");
            if (!userAgreesToClose(question, zeb::driveLetter(open))) {
                return;
            }
            docs.closeSdDrive();
        }
        docs.prepareDrive(zeb::SdDriveKind);
        docs.openSdDrive(drive);
    });
}

bool JS_Mediator_FileDialog::userAgreesToClose(const QString& question, const QString& name) const {
    return host().confirmModal(host().translate(question).arg(name), host().getMainWindow(), {});
}

void JS_Mediator_FileDialog::selectFDDrive(int fdType, int driveNo, int slotNo, const QString& driveName) {
    call(*this, Change, __func__, {{"driveName", driveName}}, [&] {
        openMedium(zeb::QuikDrive, {fdType, driveNo, slotNo, driveName},
                   TextKey("Multiple QUIK Drives with USB connection can not be opened at the same time.Are you sure "
                           "you want to close all data of %1?"));
    });
}

void JS_Mediator_FileDialog::selectCFDrive(int cfType, int driveNo, int slotNo, const QString& driveName) {
    call(*this, Change, __func__, {{"driveName", driveName}}, [&] {
        openMedium(zeb::CFast, {cfType, driveNo, slotNo, driveName},
                   TextKey("Multiple CFast with USB connection can not be opened at the same time.Are you sure you "
                           "want to close all data of %1?"));
    });
}

void JS_Mediator_FileDialog::openMedium(int kind, const zeb::Medium& medium, const QString& question) {
    ZebMedia& media = host().docManager().media();
    if (media.isMediumLocked(kind, medium) && !media.unlockMedium(kind, medium)) {
        return;
    }
    zeb::Medium open;
    if (media.getOpenMedium(kind, open) && !zeb::isSamePlace(open, medium)) {
        if (!userAgreesToClose(question, open.name)) {
            return;
        }
        media.closeMedium(kind);
    }
    media.openMedium(kind, medium);
}
