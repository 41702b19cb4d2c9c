#include "JS_Mediator_MediaDialog.h"

#include "BridgeCall.h"
#include "MediumDialog.h"
#include "SimHost.h"
#include "SizeText.h"
#include "UiText.h"

#include <QDir>
#include <QJsonDocument>

namespace {

QJsonObject recordOf(const Medium& medium, bool isOpen) {
    const zeb::Medium& place = medium.place();
    return {{"kind", medium.kind()},
            {"type", place.type},
            {"drive", place.drive},
            {"slot", place.slot},
            {"name", medium.name()},
            {"drivename", medium.driveName()},
            {"kindLabel", uiText(medium.kindOf().text)},
            {"formattable", medium.kindOf().isFormattable},
            {"hasPassword", medium.kindOf().canHavePassword},
            {"folder", QDir::toNativeSeparators(medium.folder())},
            {"open", isOpen},
            {"locked", medium.isLocked()},
            {"protected", medium.isProtected()}};
}

QString textOf(const QJsonDocument& json) {
    return QString::fromUtf8(json.toJson(QJsonDocument::Compact));
}

}  // namespace

JS_Mediator_MediaDialog::JS_Mediator_MediaDialog(SimHost& host)
    : JS_Mediator_FileDialog(&host, QStringLiteral("fileopendialog")), m_simHost(host) {}

QString JS_Mediator_MediaDialog::getMedia() {
    return call(*this, Query, __func__, {}, [this] {
        QJsonArray records;
        for (const MediumKind& kind : mediumKinds()) {
            const MediaShelf::Held open = m_simHost.shelf().open(kind.kind);
            int recid = 0;
            for (const MediaShelf::Held& medium : m_simHost.shelf().media(kind.kind)) {
                QJsonObject record = recordOf(*medium, medium == open);
                record.insert(QStringLiteral("recid"), recid++);
                records.append(record);
            }
        }
        return textOf(QJsonDocument(records));
    });
}

QString JS_Mediator_MediaDialog::getUse(int kind, int type, int drive, int slot) {
    return call(*this, Query, __func__, {}, [&] {
        const MediaShelf::Held medium = m_simHost.shelf().find(kind, zeb::Medium{type, drive, slot, {}});
        const zeb::MediumUse use = medium ? medium->use() : zeb::MediumUse();
        return textOf(QJsonDocument(QJsonObject{{"used", double(use.used)},
                                                {"capacity", double(use.capacity)},
                                                {"usedLabel", sizeText(use.used)},
                                                {"capacityLabel", sizeText(use.capacity)}}));
    });
}

void JS_Mediator_MediaDialog::closeMedium(int kind) {
    call(*this, Change, __func__, {{"kind", kind}}, [&] { m_simHost.docManager().media().close(kind); });
}

void JS_Mediator_MediaDialog::putIn() {
    call(*this, Action, __func__, {}, [this] { runMediumDialog(m_simHost); });
}
