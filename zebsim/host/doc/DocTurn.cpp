#include "DocTurn.h"

#include "Camera.h"
#include "SimDocument.h"

#include <QThread>

DocTurn::DocTurn(QObject* parent) : QObject(parent) {
    // Outside of all event loops no turn ends; there the first loop inside would take the documents away.
    if (thread()->loopLevel() > 0) {
        deleteLater();
    }
}

DocTurn::~DocTurn() = default;

SimDocument* DocTurn::document(const std::shared_ptr<Camera>& camera, const HostContext& host) {
    auto& doc = m_docs[camera->key()];
    if (!doc) {
        doc = std::make_unique<SimDocument>(camera, host);
    }
    return doc.get();
}
