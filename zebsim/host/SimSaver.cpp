#include "SimSaver.h"

#include "HostCalls.h"
#include "HostWindows.h"
#include "StatusFlags.h"

#include <QClipboard>
#include <QGuiApplication>

bool SimSaver::isSaving() const {
    return m_flags.isOn(StatusFlags::IsSaving) || m_windows->isSaving();
}

bool SimSaver::isBgSaving() const {
    return m_flags.isOn(StatusFlags::IsBgSaving);
}

bool SimSaver::isBgConverting() const {
    return m_flags.isOn(StatusFlags::IsBgConverting);
}

void SimSaver::copyToClipboard(int what) {
    m_calls.change(OPERATION("ZebSaver::copyToClipboard"), {what});
    const QImage image = m_windows->currentImage();
    if (!image.isNull()) {
        QGuiApplication::clipboard()->setImage(image);
    }
}

void SimSaver::snapShot(int mode) {
    m_calls.change(OPERATION("ZebSaver::snapShot"), {mode});
    m_windows->snapShot(mode);
}
