#include "BridgeCall.h"
#include "ConnectedDocs.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "GUI_ConvertParameterEditDialog.h"
#include "JS_Mediator_FileDialog.h"
#include "ModalRun.h"
#include "RecordingFolder.h"
#include "SizeText.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMedia.h"
#include "ZebSaver.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QPixmap>

namespace {

DocKeyList keysOf(const QVariantList& texts) {
    DocKeyList keys;
    for (const QVariant& text : texts) {
        bool isKey = false;
        const DOCKEY key = text.toString().toUInt(&isKey);
        if (isKey) {
            keys.append(key);
        }
    }
    return keys;
}

QString keyText(const QVariantList& keys) {
    return QVariant(keys).toStringList().join(QLatin1Char(','));
}

}  // namespace

bool JS_Mediator_FileDialog::openFolder() {
    return call(*this, Change, __func__, {}, [this] { return openRecordingFolder(host()); });
}

/// Tells the user why.
bool JS_Mediator_FileDialog::isRefused() const {
    const bool isConverting = host().saver().isBgConverting();
    if (isConverting) {
        host().warn(host().translate(TextKey("You can not edit during the conversion process.")), nullptr);
    }
    return isConverting;
}

bool JS_Mediator_FileDialog::openCustumTimeCodeDialog() {
    return call(*this, Action, __func__, {}, [this] { return !isRefused() && host().openCustomTimeCodeDialog(); });
}

bool JS_Mediator_FileDialog::openConvertParameterEditDialog(const QVariantList& dockeyList) {
    return call(*this, Action, __func__, {{"dockeyList", keyText(dockeyList)}}, [&] {
        if (isRefused()) {
            return false;
        }
        ModalRun run(new GUI_ConvertParameterEditDialog(&host(), keysOf(dockeyList), host().getMainWindow()));
        return run.exec() == QDialog::Accepted;
    });
}

bool JS_Mediator_FileDialog::saveInfoView(const QVariantList& targets) {
    return call(*this, Action, __func__, {{"targets", keyText(targets)}},
                [&] { return !isRefused() && host().openSaveInfoView(keysOf(targets)); });
}

void JS_Mediator_FileDialog::importTarget(const QVariantList& dockeyList) {
    call(*this, Change, __func__, {{"dockeyList", keyText(dockeyList)}},
         [&] { host().docManager().media().importDocs(keysOf(dockeyList)); });
}

QString JS_Mediator_FileDialog::recordsText(const DocKeyList& keys, bool onMedium) {
    return QString::fromUtf8(
        QJsonDocument(m_records.records(keys, onMedium, cycleFailures())).toJson(QJsonDocument::Compact));
}

QString JS_Mediator_FileDialog::list(bool temporary) {
    return call(*this, TracedQuery, __func__, {{"temporary", temporary}}, [&] {
        const ZebDocManager& docs = host().docManager();
        return recordsText(temporary ? docs.getTemporarySaveDocKeys() : docs.getDocKeys(1), temporary);
    });
}

QString JS_Mediator_FileDialog::select(DOCKEY dockey, PARTITIONNUMBER partitionNo, int width, int height) {
    return call(*this, TracedQuery, __func__, {{"dockey", dockey}, {"partitionNo", partitionNo}}, [&] {
        m_selectDocKey = dockey;
        m_selectPartitionNo = partitionNo;
        DOC_Interface* doc = host().docManager().getDoc(dockey, 1);
        if (doc == nullptr) {
            return QString();
        }
        Q_EMIT selectedDocHeadCount(deviceOf(*doc).getHeadCount());
        const QPixmap picture =
            doc->image().getPreview(previewType(bridgeName()), width, height, partitionNo, 0, m_time);
        QBuffer png;
        return picture.save(&png, "PNG") ? QString::fromLatin1(png.data().toBase64()) : QString();
    });
}

DOCKEY JS_Mediator_FileDialog::getSelectDocKey() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_selectDocKey; });
}

void JS_Mediator_FileDialog::setSelectDocKey(ulong dockey) {
    call(*this, Traced, __func__, {{"dockey", qulonglong(dockey)}},
         [&] { m_selectDocKey = static_cast<DOCKEY>(dockey); });
}

PARTITIONNUMBER JS_Mediator_FileDialog::getSelectPartitionNo() {
    return call(*this, TracedQuery, __func__, {}, [this] { return m_selectPartitionNo; });
}

void JS_Mediator_FileDialog::setSelectPartitionNo(int partitionNo) {
    call(*this, Traced, __func__, {{"partitionNo", partitionNo}},
         [&] { m_selectPartitionNo = static_cast<PARTITIONNUMBER>(partitionNo); });
}

int JS_Mediator_FileDialog::countSelectedDocs() {
    return call(*this, TracedQuery, __func__, {}, [this] {
        const int count = host().docManager().getSelectedDocCount();
        Q_EMIT selectedDocCount(count);
        return count;
    });
}

QString JS_Mediator_FileDialog::capcityToString(const QVariantList& selects) {
    return call(*this, TracedQuery, __func__, {}, [&] {
        qint64 bytes = 0;
        for (const QVariant& select : selects) {
            bytes += (select.type() == QVariant::Map ? select.toMap().value(QStringLiteral("capacity")) : select)
                         .toLongLong();
        }
        return sizeText(bytes);
    });
}
