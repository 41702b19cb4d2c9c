#include "TextBench.h"

#include "CpuTime.h"
#include "CycleFailures.h"
#include "DOC_Activity.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "Median.h"
#include "RecordModel.h"
#include "TableState.h"
#include "ZebDocManager.h"

#include <QJsonDocument>

namespace {

constexpr int Runs = 15;

template <typename Work>
double timed(Work&& work) {
    const double start = cpuTime();
    work();
    return cpuTime() - start;
}

void askParameters(const DOC_Control& camera) {
    camera.getRecordRateList();
    camera.getRecordRate(0);
    camera.getShutterSpeedEntries();
    camera.getShutterSpeed();
    camera.getResolutionList();
    camera.getResolution();
    camera.getTriggerMode();
    camera.getTriggerModeList();
}

void askStates(DOC_Interface& doc) {
    const DOC_Control& camera = doc.control();
    doc.lock().isParamLocked();
    camera.isLowLightMode();
    camera.getCameraStatus();
    if (camera.hasSyncStatus()) {
        camera.getSyncStatusText();
    }
    camera.isFunctionSupported(zeb::FunctionReduceMode, 1);
    camera.getReduceMode(0);
    doc.activity().isSuspendReduce();
    camera.isFunctionSupported(zeb::FunctionLowLight, 1);
    camera.getLowLightType();
}

/// What a row of the live control is made of, each asked once a camera, as the rows do.
void askHost(ZebHost& host) {
    ZebDocManager& documents = host.docManager();
    for (const DOCKEY key : documents.getDocKeys()) {
        DOC_Interface* doc = documents.getDocAny(key);
        doc->isConnected();
        doc->isSelected();
        documents.isCurrentDoc(key);
        doc->getKey();
        doc->control().getCameraName(1);
        doc->isMobileSelected();
        if (const DOC_Interface* device = doc->getParentDoc()) {
            device->getAlerts();
        }
        doc->getAlerts();
        askStates(*doc);
        askParameters(doc->control());
    }
}

}  // namespace

QJsonObject TextBench::run() {
    SimHost& host = m_cameras.host();
    TableState state;
    RecordModel model(host, state);
    CycleFailures failures;
    const QString request = QStringLiteral("{\"group\":\"\",\"filter\":0,\"tab\":1}");
    model.getRecords(request, failures);  // the first one selects cameras
    QVector<double> builds;
    QVector<double> writes;
    QVector<double> asks;
    for (int run = 0; run < Runs; ++run) {
        m_cameras.change(1, run);
        QString text;
        asks.append(timed([&host] { askHost(host); }));
        builds.append(timed([&] { text = model.getRecords(request, failures).json; }) - asks.last());
        const QJsonDocument same = QJsonDocument::fromJson(text.toUtf8());
        QByteArray written;
        writes.append(timed([&] { written = same.toJson(QJsonDocument::Compact); }));
    }
    return {{QStringLiteral("build"), median(builds)},
            {QStringLiteral("write"), median(writes)},
            {QStringLiteral("ask"), median(asks)}};
}
