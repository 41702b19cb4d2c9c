#include "SimSaver.h"

#include "HostCalls.h"
#include "HostContext.h"
#include "HostWindows.h"
#include "Preferences.h"
#include "StatusFlags.h"

#include <QClipboard>
#include <QGuiApplication>

bool SimSaver::getName(const char* key, QString& out) const {
    const QString name = m_host.prefs.value(QLatin1String(key)).toString();
    out = name.isEmpty() ? out : name;
    return !name.isEmpty();
}

void SimSaver::setLastGroupDir(const QString& name) {
    m_host.calls.note("ZebSaver::setLastGroupDir", {name});
}

void SimSaver::setLastFolder(const QString& folder) {
    m_host.calls.note("ZebSaver::setLastFolder", {folder});
}

void SimSaver::setLastPath(const QString& path) {
    m_host.calls.note("ZebSaver::setLastPath", {path});
    m_promises.promise(path);
}

void SimSaver::resetNameState() {
    m_host.calls.note("ZebSaver::resetNameState");
}

bool SimSaver::isSaving() const {
    return m_host.flags.isOn(StatusFlags::IsSaving) || m_host.windows->isSaving();
}

bool SimSaver::isBgSaving() const {
    return m_host.flags.isOn(StatusFlags::IsBgSaving);
}

bool SimSaver::isBgConverting() const {
    return m_host.flags.isOn(StatusFlags::IsBgConverting) || m_host.windows->isConverting();
}

void SimSaver::copyToClipboard(int what) {
    m_host.calls.change(OPERATION("ZebSaver::copyToClipboard"), {what});
    const QImage image = m_host.windows->currentImage();
    if (!image.isNull()) {
        QGuiApplication::clipboard()->setImage(image);
    }
}

void SimSaver::snapShot(int mode) {
    m_host.calls.change(OPERATION("ZebSaver::snapShot"), {mode});
    m_host.windows->snapShot(mode);
}
