#include "JS_Mediator.h"

#include "BridgeCall.h"
#include "CalibrationUnits.h"
#include "ControlStatus.h"
#include "DOC_Frames.h"
#include "DOC_Interface.h"
#include "DeterScope.h"
#include "DeviceInfo.h"
#include "DocumentGuard.h"
#include "OperationEventHandler.h"
#include "PrefsDialog.h"
#include "RangeMax.h"
#include "Style.h"
#include "SupportFileExport.h"
#include "TextResource.h"
#include "ZebAppStatus.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebMdi.h"
#include "ZebSaver.h"
#include "ZebViewOps.h"

#include <QDebug>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedValueRollback>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

#include <optional>

JS_Mediator::JS_Mediator(ZebHost* host, const QString& name, QObject* parent) : PageBridge(name, parent), m_host(host) {
    connect(this, &JS_Mediator::update, this, [this] { m_cycleFailures.nextCycle(); });
}

void JS_Mediator::raiseUpdate() {
    Q_EMIT update();
}

void JS_Mediator::errorHandler(std::exception& e) {
    host().errorHandler(e);
}

void JS_Mediator::setStyle(const QString& style) {
    call(*this, Change, __func__, {{"style", style}}, [&] {
        host().setPref(QStringLiteral("env/style"), style);
        QWidget* mainWindow = host().getMainWindow();
        if (!mainWindow) {
            return;
        }
        if (auto* mobile = mainWindow->findChild<QDialog*>(QStringLiteral("GUI_MobileDialog"))) {
            applyNativeStyle(host(), *mobile);
        }
    });
}

QString JS_Mediator::getStyle() {
    return call(*this, Query, __func__, {}, [&] { return styleName(host()); });
}

void JS_Mediator::openPlugin(const QString& name) {
    call(*this, Change, __func__, {{"name", name}}, [&] {
        std::optional<DocumentGuard> guard;
        if (name == QLatin1String("binning")) {
            guard.emplace(host());
        }
        host().appStatus().openPlugin(name);
        if (guard) {
            guard->release();
        }
    });
}

void JS_Mediator::closePlugin() {
    call(*this, Change, __func__, {}, [&] { host().appStatus().closePanel(); });
}

void JS_Mediator::closePlugin(const QString& name) {
    call(*this, Change, __func__, {{"name", name}}, [&] {
        const DeterScope deter(host());
        host().appStatus().closePlugin(name);
    });
}

void JS_Mediator::info(const QString& message) {
    call(*this, Plain, __func__, {}, [&] { host().info(message, nullptr); });
}

void JS_Mediator::warn(const QString& message) {
    call(*this, Plain, __func__, {}, [&] { host().warn(message, nullptr); });
}

void JS_Mediator::warn(const QString& message, const QStringList& messages) {
    call(*this, Plain, __func__, {}, [&] { host().warnList(message, messages, nullptr); });
}

void JS_Mediator::alert(const QString& message) {
    call(*this, Plain, __func__, {}, [&] { host().alert(message, nullptr); });
}

void JS_Mediator::alert(const QString& message, const QStringList& messages) {
    call(*this, Plain, __func__, {}, [&] { host().alertList(message, messages, nullptr); });
}

bool JS_Mediator::confirm(const QString& message) {
    return call(*this, Plain, __func__, {}, [&] { return host().confirmModal(message, nullptr, {}); });
}

QString JS_Mediator::translate(const QString& string) {
    return call(*this, Query, __func__, {{"string", string}}, [&] { return host().translate(string); });
}

QString JS_Mediator::translate(const QString& string, const QString& arg) {
    return call(*this, Query, __func__, {{"string", string}},
                [&] { return host().translate(string).arg(host().translate(arg)); });
}

bool JS_Mediator::isReady() {
    return call(*this, Query, __func__, {}, [&] { return host().isReady(); });
}

bool JS_Mediator::isLiveMode() {
    return call(*this, Query, __func__, {}, [&] { return host().isLiveMode(); });
}

bool JS_Mediator::isMemoryMode() {
    return call(*this, Query, __func__, {}, [&] { return host().isMemoryMode(); });
}

bool JS_Mediator::isFileMode() {
    return call(*this, Query, __func__, {}, [&] { return host().isFileMode(); });
}

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

QString JS_Mediator::load(const QString& fileName) {
    const QString path = QStringLiteral(":/") + fileName;
    const std::optional<QString> text = readTextResource(path);
    if (!text) {
        qWarning() << "not found" << path;
    }
    return text.value_or(QString());
}

void JS_Mediator::updateUI() {
    call(*this, Plain, __func__, {}, [&] { host().updateUI(m_updateMask, true); });
}

void JS_Mediator::deterUpdateUI(bool deter) {
    call(*this, Plain, __func__, {}, [&] { host().deterUpdateUI(deter); });
}

void JS_Mediator::addPrefsJSObject() {
    if (view()) {
        view()->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("prefs"), this);
    }
}

template <typename Read>
auto JS_Mediator::readPref(const char* method, const QString& name, Read read) {
    auto value = m_lastRead.value(name).template value<decltype(read())>();
    call(*this, Query, method, {{"name", name}}, [&] {
        value = read();
        m_lastRead[name] = QVariant::fromValue(value);
    });
    return value;
}

int JS_Mediator::getPrefInt(const QString& name, const QVariant& defaultValue) {
    return readPref(__func__, name, [&] { return host().getPrefInt(name, defaultValue); });
}

bool JS_Mediator::getPrefBool(const QString& name, const QVariant& defaultValue) {
    return readPref(__func__, name, [&] { return host().getPrefBool(name, defaultValue); });
}

float JS_Mediator::getPrefFloat(const QString& name, const QVariant& defaultValue) {
    return readPref(__func__, name, [&] { return host().getPrefFloat(name, defaultValue); });
}

QString JS_Mediator::getPrefString(const QString& name, const QVariant& defaultValue) {
    return readPref(__func__, name, [&] { return host().getPrefString(name, defaultValue); });
}

template <typename Store>
void JS_Mediator::storePref(const char* method, const QString& name, const QVariant& value, bool update, Store store) {
    call(*this, update ? Updating : Plain, method, {{"name", name}, {"value", value}}, store);
}

void JS_Mediator::setPrefInt(const QString& name, int value, bool update) {
    storePref(__func__, name, value, update, [&] { host().setPrefInt(name, value); });
}

void JS_Mediator::setPrefBool(const QString& name, bool value, bool update) {
    storePref(__func__, name, value, update, [&] { host().setPrefBool(name, value); });
}

void JS_Mediator::setPrefFloat(const QString& name, float value, bool update) {
    storePref(__func__, name, value, update, [&] { host().setPrefFloat(name, value); });
}

void JS_Mediator::setPrefString(const QString& name, const QString& value, bool update) {
    storePref(__func__, name, value, update, [&] { host().setPrefString(name, value); });
}

void JS_Mediator::setPrefDQString(const QString& name, const QString& value, bool update) {
    storePref(__func__, name, value, update, [&] { host().setPref(name, QVariant(value)); });
}

int JS_Mediator::openPrefsDialog(const QString& page) {
    return call(*this, Exclusive, __func__, {{"page", page}}, [&] { return runPrefsDialog(host(), page); });
}

void JS_Mediator::openPrefsEthernetSettings() {
    call(*this, Action, __func__, {}, [&] { host().openPrefsEthernetSettings(); });
}

void JS_Mediator::openExportSupportFileDialog() {
    call(*this, Action, __func__, {}, [&] { SupportFileExport(host()).run(); });
}

void JS_Mediator::openAbouZebDialog() {
    call(*this, Action, __func__, {}, [&] { host().openAboutDialog(); });
}

void JS_Mediator::infoLog(const QString& msg) {
    qInfo() << msg;
}

void JS_Mediator::errorLog(const QString& msg) {
    qCritical() << msg;
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

bool JS_Mediator::isUpdateIgnore() {
    return call(*this, Query, __func__, {}, [&] { return host().isUpdateIgnore(); });
}

void JS_Mediator::setDisableAllQuickTool() {
    call(*this, Action, __func__, {}, [&] {
        host().docManager().setActiveQuickTool(QString());
        host().docManager().refreshDocList(1);
        host().refreshTools();
    });
}

void JS_Mediator::userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                          const QString& id, const QString& className, const QVariant& value) {
    logUserOperation(url, operation, control, id, className, value);
}

void JS_Mediator::userOperationErrorLog(const QString& message) {
    logUserError(message);
}

void JS_Mediator::setConnectedCameraShowing(bool check) {
    call(*this, Plain, __func__, {}, [&] { host().setPrefBool(QLatin1String(ConnectedCameraOnlyPref), check); });
}

bool JS_Mediator::getConnectedCameraShowing() {
    return call(*this, Query, __func__, {},
                [&] { return host().getPrefBool(QLatin1String(ConnectedCameraOnlyPref), false); });
}

int JS_Mediator::countMdiWindow(bool visible) {
    return call(*this, Query, __func__, {}, [&] { return host().mdi().countMdiWindow(visible, 2); });
}

bool JS_Mediator::isWrenRunning() {
    return call(*this, Query, __func__, {}, [&] { return host().appStatus().isWrenRunning(); });
}

void JS_Mediator::checkRestoredPrefs() {
    call(*this, Plain, __func__, {}, [&] {
        if (host().isPrefsRestored()) {
            host().setPrefsRestored(1);
        }
    });
}

void JS_Mediator::hideSelectBox() {
    call(*this, Plain, __func__, {}, [&] { host().hideSelectBox(); });
}

bool JS_Mediator::isShownDropBox() {
    return call(*this, Query, __func__, {}, [&] { return host().isShownDropBox(); });
}

void JS_Mediator::showDropDownBox(const QString& key, int x, int y, int width, int height) {
    call(*this, Plain, __func__, {}, [&] { host().showDropDownBox(key, QRect(x, y, width, height)); });
}

void JS_Mediator::hideDropDownBox(const QString& key) {
    call(*this, Plain, __func__, {}, [&] { host().hideDropDownBox(key); });
}

void JS_Mediator::hideDropDownBox(const QString& key, int x, int y) {
    call(*this, Plain, __func__, {}, [&] { host().hideDropDownBoxAt(key, QPoint(x, y)); });
}

bool JS_Mediator::isMVersion() {
    return call(*this, Query, __func__, {}, [&] { return host().appStatus().isMVersion(); });
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
