#include "CameraEdit.h"
#include "CurrentCamera.h"
#include "MemoryEditing.h"
#include "RecordChecks.h"
#include "TableView.h"

#include <QRect>

template <>
MemoryEditing JS_Mediator_WrenTableDialog::topic() {
    return MemoryEditing(host());
}

template <>
RecordChecks JS_Mediator_WrenTableDialog::topic() {
    return RecordChecks(host());
}

PARTITIONNUMBER JS_Mediator_WrenTableDialog::getCurrentPartition() {
    return call(*this, Query, __func__, {}, [this] { return currentPartition(host()); });
}

QString JS_Mediator_WrenTableDialog::getCurrentPartitionName() {
    return call(*this, Query, __func__, {}, [this] { return currentPartitionName(host()); });
}

void JS_Mediator_WrenTableDialog::showLivePartition(int x, int y, int width, int height) {
    call(*this, Plain, __func__, {}, [&] {
        if (TableView* table = tableView()) {
            table->showPartitionBox({x, y, width, height});
        }
    });
}

void JS_Mediator_WrenTableDialog::hideSelectBox() {
    call(*this, Plain, __func__, {}, [this] {
        if (TableView* table = tableView()) {
            table->hidePartitionBox();
        }
    });
}

bool JS_Mediator_WrenTableDialog::isShownSelectBox() {
    return call(*this, Query, __func__, {}, [this] {
        const TableView* table = tableView();
        return table != nullptr && table->isPartitionBoxShown();
    });
}

void JS_Mediator_WrenTableDialog::setRecordCheck(const QVariantList& keys, bool check) {
    edit(__func__, keys, "check", check, &RecordChecks::set, cameraaction::RecordCheck);
}

void JS_Mediator_WrenTableDialog::setSelectStartFrameNo(const QVariantList& keys, int frameNo) {
    edit(__func__, keys, "frameNo", frameNo, &MemoryEditing::setSelectStartFrameNo, cameraaction::FirstFrame);
}

void JS_Mediator_WrenTableDialog::setSelectEndFrameNo(const QVariantList& keys, int frameNo) {
    edit(__func__, keys, "frameNo", frameNo, &MemoryEditing::setSelectEndFrameNo, cameraaction::LastFrame);
}

void JS_Mediator_WrenTableDialog::setTriggerOffset(const QVariantList& keys, int offset) {
    edit(__func__, keys, "offset", offset, &MemoryEditing::setTriggerOffset, cameraaction::Offset);
}

void JS_Mediator_WrenTableDialog::save() {
    call(*this, Change, __func__, {}, [this] { topic<MemoryEditing>().save(); });
}

void JS_Mediator_WrenTableDialog::saveLayout() {
    call(*this, Change, __func__, {}, [this] { topic<MemoryEditing>().saveLayout(); });
}
