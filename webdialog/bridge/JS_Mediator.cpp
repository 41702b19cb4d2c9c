#include "JS_Mediator.h"

#include "BridgeCall.h"
#include "TextResource.h"
#include "ZebAppStatus.h"
#include "ZebHost.h"

#include <QDebug>
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
    if (view() && !m_isSecond) {
        view()->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("prefs"), this);
    }
}

bool JS_Mediator::isUpdateIgnore() {
    return call(*this, Query, __func__, {}, [&] { return host().isUpdateIgnore(); });
}

bool JS_Mediator::isWrenRunning() {
    return call(*this, Query, __func__, {}, [&] { return host().appStatus().isWrenRunning(); });
}

bool JS_Mediator::isMVersion() {
    return call(*this, Query, __func__, {}, [&] { return host().appStatus().isMVersion(); });
}
