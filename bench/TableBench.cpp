#include "TableBench.h"

#include "HostPages.h"
#include "camera/Camera.h"
#include "camera/Rig.h"
#include "host/MessageDesk.h"
#include "host/PluginLoader.h"
#include "host/PluginSlot.h"
#include "host/SimHost.h"
#include "recording/SteppedClock.h"

#include <QCoreApplication>
#include <QDialog>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QWebFrame>
#include <QWebView>

#include <stdexcept>

namespace {

/// Accepts every box.
class QuietDesk : public MessageDesk {
public:
    Answer show(const Message&) override { return {}; }
};

/// Twice the cameras, for half of them are gone at any time.
Rig connectedRig(int cameras) {
    Rig rig = Rig::standard(2 * cameras);
    for (RigDevice& device : rig.devices) {
        for (CameraState& head : device.heads) {
            head.connected = true;
        }
    }
    return rig;
}

QVariant evaluate(QWebView& view, const QString& script) {
    return view.page()->mainFrame()->evaluateJavaScript(script);
}

/// The page has drawn rows, and nothing more is owed to it.
void waitForRows(SimHost& host, QWebView& view) {
    const QString drawn = QStringLiteral(
        "document.querySelectorAll('#livecontrolTab tr[recid]').length > 1 && !wrentabledialog_obj.initialize");
    QElapsedTimer waiting;
    waiting.start();
    while (host.updates().isPending() || !evaluate(view, drawn).toBool()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        if (waiting.hasExpired(120000)) {
            throw std::runtime_error("The page of the table shows no rows.");
        }
    }
}

}  // namespace

QJsonObject TableBench::run() {
    const QTemporaryDir folder;
    SteppedClock clock;
    QuietDesk desk;
    initHostPages();
    SimHost host(clock, desk, folder.filePath(QStringLiteral("bench.ini")));
    m_host = &host;
    m_clock.start();
    host.journal().setEnabled(false);
    host.setRig(connectedRig(m_cameras));
    showOthers(0);
    // No tick of the table's own comes in between.
    host.prefs().setValue(QStringLiteral("wren/table/interval"), 1000000);

    PluginLoader library(QStringLiteral(WREN_LIBRARY), host);
    PluginSlot slot(host, library.plugin());
    slot.open();
    QDialog* dialog = library.plugin().getDialog(false);
    dialog->setGeometry(0, 0, 1920, 1080);
    auto* view = dialog->findChild<QWebView*>();
    view->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("bench"), this);
    connect(view->page()->mainFrame(), &QWebFrame::javaScriptWindowObjectCleared, this,
            [this, view] { view->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("bench"), this); });
    const QString show =
        QStringLiteral("window.$ && $('#tabs').tabs('instance') && $('#tabs').tabs('option', 'active', 1)");
    connect(view, &QWebView::loadFinished, this, [view, show] { evaluate(*view, show); });
    waitForRows(host, *view);

    QFile script(QStringLiteral(":/bench/measure.js"));
    if (!script.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("The script of the measurement is missing.");
    }
    const QByteArray times = evaluate(*view, QString::fromUtf8(script.readAll())).toString().toUtf8();
    if (times.isEmpty()) {
        throw std::runtime_error("The measurement failed in the page.");
    }
    return QJsonDocument::fromJson(times).object();
}

void TableBench::changeAll(int run) {
    change(1, run);
}

void TableBench::changeTenth(int run) {
    change(10, run);
}

void TableBench::changeHidden(int run) {
    for (Camera* camera : m_host->cameras().all()) {
        camera->change(
            {{QStringLiteral("lowLightType"), run % 2 != 0 ? zeb::LowLightTypeFast : zeb::LowLightTypeFine}});
    }
}

void TableBench::showOthers(int run) {
    for (DOCKEY key = 1; key <= DOCKEY(2 * m_cameras); ++key) {
        Fault fault;
        fault.gone = (key + DOCKEY(run)) % 2 == 0;
        m_host->faults().plant(key, QStringLiteral("*"), fault);
    }
}

void TableBench::change(int step, int run) {
    const bool odd = run % 2 != 0;
    int index = 0;
    for (Camera* camera : m_host->cameras().all()) {
        if (index++ % step == 0) {
            camera->change(
                {{QStringLiteral("name"), QStringLiteral("Camera %1 of %2").arg(camera->key()).arg(run)},
                 {QStringLiteral("rate"), odd ? 500 : 1000},
                 {QStringLiteral("locked"), odd},
                 {QStringLiteral("syncStatus"), odd ? QStringLiteral("Sync In") : QStringLiteral("No Sync")}});
        }
    }
}
