#include "BridgeCall.h"
#include "DeviceInfo.h"
#include "PrefsDialog.h"
#include "Style.h"
#include "ZebHost.h"

#include <QDialog>

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

void JS_Mediator::setConnectedCameraShowing(bool check) {
    call(*this, Plain, __func__, {}, [&] { host().setPrefBool(QLatin1String(ConnectedCameraOnlyPref), check); });
}

bool JS_Mediator::getConnectedCameraShowing() {
    return call(*this, Query, __func__, {},
                [&] { return host().getPrefBool(QLatin1String(ConnectedCameraOnlyPref), false); });
}

void JS_Mediator::checkRestoredPrefs() {
    call(*this, Plain, __func__, {}, [&] {
        if (host().isPrefsRestored()) {
            host().setPrefsRestored(1);
        }
    });
}
