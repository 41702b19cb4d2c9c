#include "RestartWatch.h"

#include "Camera.h"
#include "CameraBank.h"
#include "Clock.h"
#include "HostBatch.h"
#include "HostContext.h"
#include "Notices.h"
#include "TextKey.h"
#include "Translator.h"
#include "UpdateCycle.h"

#include <QtDebug>

void RestartWatch::proceed() {
    DocKeyList back;
    for (const Camera* camera : m_host.cameras.known()) {
        const Restart::End end = camera->device().restart().endBy(m_host.clock.now());
        if (end == Restart::End::StaysAway || (end != Restart::End::None && camera->isGone())) {
            const QString text = m_host.translator.translate(TextKey("%1: it has not come back after its restart."));
            m_host.notices.add(Message::Error, text.arg(m_host.cameras.labelOf(*camera)));
        } else if (end == Restart::End::BackAsMarked) {
            back.append(camera->key());
        }
    }
    if (!back.isEmpty()) {
        connectAgain(back);
    }
}

void RestartWatch::connectAgain(const DocKeyList& keys) {
    qInfo() << "Cameras are back after their restart:" << keys;
    try {
        m_host.batch.runOrThrow(m_host.cameras.holdDevices(keys), [](Camera& camera) { camera.connect(); });
    } catch (const std::exception& failure) {
        m_host.notices.add(Message::Error, QString::fromUtf8(failure.what()));
    }
    m_host.updates.request();
}

void RestartWatch::expectNone() {
    for (const Camera* camera : m_host.cameras.known()) {
        camera->device().restart().setMarked(false);
    }
}

void RestartWatch::reboot(DOCKEY key) {
    if (const auto camera = m_host.cameras.hold(key)) {
        camera->reboot();
        m_host.updates.request();
    }
}
