#include "SimSaver.h"

#include "AppDesk.h"
#include "HostCalls.h"
#include "StatusFlags.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

SimSaver::SimSaver(const HostCalls& calls, const StatusFlags& flags, std::function<AppDesk*()> desk)
    : m_calls(calls), m_flags(flags), m_desk(std::move(desk)) {}

bool SimSaver::isSaving() const {
    return m_flags.isOn(QStringLiteral("IsSaving")) || (m_desk() && m_desk()->isSaving());
}

bool SimSaver::isBgSaving() const {
    return m_flags.isOn(QStringLiteral("IsBgSaving"));
}

bool SimSaver::isBgConverting() const {
    return m_flags.isOn(QStringLiteral("IsBgConverting"));
}

void SimSaver::copyToClipboard(int what) {
    m_calls.change("ZebSaver::copyToClipboard", {what});
    const QImage image = m_desk() ? m_desk()->currentImage() : QImage();
    if (!image.isNull()) {
        QGuiApplication::clipboard()->setImage(image);
    }
}

void SimSaver::snapShot(int mode) {
    m_calls.change("ZebSaver::snapShot", {mode});
    if (m_desk()) {
        m_desk()->snapShot(mode);
    }
}
