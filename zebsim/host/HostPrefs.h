#pragma once

#include "FactoryValues.h"
#include "HostCalls.h"
#include "Preferences.h"
#include "TriedPrefs.h"

#include <QStringList>

/// The preferences as plug-ins read and write them. GUI thread.
class HostPrefs {
public:
    /// Both must outlive the object.
    HostPrefs(const HostCalls& calls, Preferences& prefs)
        : m_calls(calls), m_prefs(prefs), m_tried(prefs), m_isRestored(!prefs.problem().isEmpty()) {}

    /// As `ZebHost::getPref` and `ZebHost::setPref`, by the operation that the plug-in called.
    QVariant get(HostOperation operation, const QString& key, const QVariant& defaultValue) const {
        m_calls.ask(operation);
        return m_prefs.value(key, defaultValue);
    }
    void set(HostOperation operation, const QString& key, const QVariant& value) {
        m_calls.change(operation, {key, value});
        m_tried.set(key, value);
    }

    TriedPrefs& tried() { return m_tried; }

    /// As `ZebHost::getDefaultColumnOrder`.
    QString defaultColumnOrder(int tab) const {
        static const QStringList tabs =
            QStringLiteral("cameraInfo,livecontrol,sync,irig,plugin,memoryInfo,memoryPlugin").split(QLatin1Char(','));
        m_calls.ask(OPERATION("getDefaultColumnOrder"));
        return factoryValues().value(QStringLiteral("wren/column_order/") % tabs.value(tab)).toString();
    }

    /// As `ZebHost::isPrefsRestored` and what sets it.
    bool isRestored() const {
        m_calls.ask(OPERATION("isPrefsRestored"));
        return m_isRestored;
    }
    void setRestored(int state) {
        m_calls.change(OPERATION("ZebHost::setPrefsRestored"), {state});
        m_isRestored = state == 0;
    }

    void clearRestored(int mode) {
        m_calls.change(OPERATION("ZebHost::clearPrefsRestored"), {mode});
        m_isRestored = false;
    }

private:
    const HostCalls& m_calls;
    Preferences& m_prefs;
    TriedPrefs m_tried;
    bool m_isRestored;
};
