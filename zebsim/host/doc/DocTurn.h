#pragma once

#include "ZebTypes.h"

#include <QObject>

#include <memory>
#include <unordered_map>

class Camera;
class SimDocument;
struct HostContext;

/// The documents that were handed out in one turn of an event loop. It goes when its loop takes the next turn, not in a
/// loop inside that one: whoever still has a document then is found out. GUI thread.
class DocTurn : public QObject {
public:
    /// Goes with `parent` at the latest.
    explicit DocTurn(QObject* parent);
    ~DocTurn() override;

    SimDocument* document(const std::shared_ptr<Camera>& camera, const HostContext& host);
    std::size_t count() const { return m_docs.size(); }

private:
    std::unordered_map<DOCKEY, std::unique_ptr<SimDocument>> m_docs;
};
