#include "BridgeCall.h"
#include "JS_Mediator_FileDialog.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMedia.h"

#include <QJsonDocument>

#include <algorithm>

namespace {

const QString DriveName = QStringLiteral("drivename");

/// `selected` is the index of the open one, below 0 when none of the list is open.
QString listText(const QJsonArray& records, int selected) {
    const int select = records.isEmpty() ? -1 : qMax(0, selected);
    const QJsonObject list{{QStringLiteral("record"), records}, {QStringLiteral("select"), select}};
    return QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
}

}  // namespace

QString JS_Mediator_FileDialog::getSDDrives() {
    return call(*this, TracedQuery, __func__, {}, [this] {
        constexpr int Letters = 26;
        m_driveNames.clear();
        const unsigned int mask = host().docManager().getSdDriveMask();
        QJsonArray records;
        for (int drive = 0; drive < Letters; ++drive) {
            if ((mask >> drive & 1U) != 0) {
                m_driveNames.insert(drive, zeb::driveLetter(drive));
                records.append(
                    QJsonObject{{QStringLiteral("recid"), records.size()}, {DriveName, zeb::driveLetter(drive)}});
            }
        }
        int open = -1;
        const bool isOpen = host().docManager().getOpenSdDrive(open);
        return listText(records, isOpen ? m_driveNames.keys().indexOf(open) : -1);
    });
}

QString JS_Mediator_FileDialog::mediaText(int kind) const {
    const QList<zeb::Medium> media = host().docManager().media().getMedia(kind);
    QJsonArray records;
    for (const zeb::Medium& medium : media) {
        records.append(QJsonObject{{QStringLiteral("recid"), records.size()},
                                   {DriveName, medium.name},
                                   {QStringLiteral("drivetype"), medium.type},
                                   {QStringLiteral("driveno"), medium.drive},
                                   {QStringLiteral("slotno"), medium.slot}});
    }
    zeb::Medium open;
    const bool isOpen = host().docManager().media().getOpenMedium(kind, open);
    const auto found = std::find_if(media.begin(), media.end(),
                                    [&](const zeb::Medium& medium) { return zeb::isSamePlace(medium, open); });
    return listText(records, isOpen && found != media.end() ? int(found - media.begin()) : -1);
}

QString JS_Mediator_FileDialog::getFDDrives() {
    return call(*this, TracedQuery, __func__, {}, [this] { return mediaText(zeb::QuikDrive); });
}

QString JS_Mediator_FileDialog::getCFDrives() {
    return call(*this, TracedQuery, __func__, {}, [this] { return mediaText(zeb::CFast); });
}
