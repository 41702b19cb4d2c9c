#include "BridgeCall.h"
#include "CalibrationUnits.h"
#include "ControlStatus.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "DeterScope.h"
#include "DeviceInfo.h"
#include "OperationEventHandler.h"
#include "RangeMax.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebSaver.h"
#include "ZebViewOps.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedValueRollback>

bool JS_Mediator::isPlaying() {
    return call(*this, Query, __func__, {}, [&] {
        DOC_Interface* doc = host().docManager().getCurrentDoc();
        return doc && doc->frames().isPlaying();
    });
}

bool JS_Mediator::isConnected() {
    return call(*this, Query, __func__, {}, [&] {
        const DOC_Interface* doc = host().docManager().getCurrentDoc();
        return doc && doc->isConnected();
    });
}

QString JS_Mediator::getControlStatus(DOC_Interface* pDoc) {
    return call(*this, Query, __func__, {}, [&] {
        return QString::fromUtf8(
            QJsonDocument(controlStatus(host(), pDoc, m_cycleFailures)).toJson(QJsonDocument::Compact));
    });
}

QVariantList JS_Mediator::getDeviceInfoList(bool isMinilist) {
    QVariantList devices;
    call(*this, Plain, __func__, {}, [&] { appendDeviceInfo(devices, host(), isMinilist); });
    return devices;
}

QVariantList JS_Mediator::getSelectedDockey() {
    return call(*this, Query, __func__, {}, [&] {
        QVariantList keys;
        for (const DOCKEY key : host().docManager().getSelectedDocKeys(0)) {
            keys.append(QString::number(key));
        }
        return keys;
    });
}

void JS_Mediator::setSelectDoc(const QString& docKey) {
    const QScopedValueRollback<unsigned int> mask(m_updateMask, AllParts);
    call(*this, Change, "setSelectDocSub", {{"docKey", docKey}}, [&] {
        const DeterScope deter(host());
        bool isKey = false;
        const DOCKEY key = docKey.toUInt(&isKey);
        host().docManager().setSelectedDocs(isKey ? DocKeyList{key} : DocKeyList(), 0);
    });
}

void JS_Mediator::selectAllDocs() {
    call(*this, Exclusive, __func__, {}, [&] {
        host().appStatus().clearCurrentPlugin();
        const QScopedValueRollback<unsigned int> mask(m_updateMask, AllParts);
        ZebDocManager& docs = host().docManager();
        const DOCKEY current = docs.getCurrentDockey(0);
        {
            const OperationEventHandler scope(*this, QStringLiteral("JS_Mediator::selectAllDocsSub"));
            const DeterScope deter(host());
            docs.selectAllDocs(this);
        }
        if (current != zeb::NoDocKey) {
            docs.setCurrentDoc(current, 1);
        }
    });
}

void JS_Mediator::copySelectAreaToClipboard() {
    constexpr int SelectedArea = 2;
    call(*this, Action, __func__, {}, [&] { host().saver().copyToClipboard(SelectedArea); });
}

bool JS_Mediator::isWaveDataAcquisition() {
    return call(*this, Query, __func__, {}, [&] { return host().docManager().isWaveDataAcquisition(); });
}

QString JS_Mediator::getCalibrationUnits() {
    return call(*this, Query, __func__, {}, [&] { return calibrationUnits(host()); });
}

int JS_Mediator::getRangeMax() {
    return call(*this, Query, __func__, {}, [&] { return m_rangeMax = rangeMax(host()); });
}

void JS_Mediator::setDisableAllQuickTool() {
    call(*this, Action, __func__, {}, [&] {
        host().docManager().setActiveQuickTool(QString());
        host().docManager().refreshDocList(1);
        host().refreshTools();
    });
}

QString JS_Mediator::getFlip() {
    return call(*this, Query, __func__, {}, [&] {
        const DOCKEY key = host().docManager().getCurrentDockey(0);
        const ZebViewOps& views = host().viewOps();
        return QString::number((views.isHorizontalFlip(key) ? 1 : 0) + (views.isVerticalFlip(key) ? 2 : 0));
    });
}

QString JS_Mediator::getRotate() {
    int degrees = 0;
    call(*this, Query, __func__, {},
         [&] { degrees = qRound(host().viewOps().getRotation(host().docManager().getCurrentDockey(0)) * 360); });
    return QString::number(degrees);
}

void JS_Mediator::refreshSkipFrames(const ExportTargets& targets) {
    if (targets.isEmpty()) {
        return;
    }
    const unsigned int frames = leastFrameCount(targets);
    const QList<unsigned int> rates =
        getSkipMode() == SkipByTime ? recordRates(host(), targets) : QList<unsigned int>();
    if (getSkipMode() == SkipByTime && rates.isEmpty()) {
        setSkipMode(SkipByFrames);
    }
    m_skip = rates.isEmpty() ? skipByFrames(m_skip, frames) : skipByTime(m_skip, rates, frames);
    applySkipFrames(m_skip.clamped(getSkipFrames()));
}
