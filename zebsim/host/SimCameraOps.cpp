#include "host/SimCameraOps.h"

#include "DOC_Interface.h"
#include "camera/Camera.h"
#include "host/CameraBank.h"
#include "host/Failures.h"
#include "host/Journal.h"

SimCameraOps::SimCameraOps(Journal& journal, CameraBank& cameras) : m_journal(journal), m_cameras(cameras) {}

void SimCameraOps::setRecordRate(const DocList& docs, unsigned int rate) {
    const DocKeyList keys = keysOf(docs);
    m_journal.record("ZebCameraOps::setRecordRate", {Journal::keyList(keys), rate});
    forEach(keys, [rate](Camera& camera) { camera.setRecordRate(rate); });
}

DocKeyList SimCameraOps::keysOf(const DocList& docs) {
    DocKeyList keys;
    for (const DOC_Interface* doc : docs) {
        keys.append(doc->getKey());
    }
    return keys;
}

void SimCameraOps::forEach(const DocKeyList& keys, const std::function<void(Camera&)>& work) {
    Failures failures;
    for (const DOCKEY key : keys) {
        if (Camera* camera = m_cameras.find(key)) {
            failures.attempt([&] { work(*camera); });
        }
    }
    if (failures.any()) {
        throw failures.error();
    }
}
