#include "SimSaver.h"

#include "HostCalls.h"
#include "HostContext.h"
#include "HostWindows.h"
#include "StatusFlags.h"

#include <QClipboard>
#include <QGuiApplication>

bool SimSaver::isSaving() const {
    return m_host.flags.isOn(StatusFlags::IsSaving) || m_host.windows->isSaving();
}

bool SimSaver::isBgSaving() const {
    return m_host.flags.isOn(StatusFlags::IsBgSaving);
}

bool SimSaver::isBgConverting() const {
    return m_host.flags.isOn(StatusFlags::IsBgConverting);
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
