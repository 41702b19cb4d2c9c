#pragma once

#include "BridgeCall.h"
#include "JS_Mediator_Dialog.h"
#include "Journal.h"
#include "OperationEventHandler.h"

/// A bridge whose one slot does what the test says. Its pause stands in the journal.
class ProbeBridge : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    explicit ProbeBridge(ZebHost* host) : JS_Mediator_Dialog(host, QStringLiteral("probe")) {}

    std::function<void()> work = [] {};

public Q_SLOTS:
    QString run() {
        return bridgeCall(*this, QStringLiteral("fallback"), [this] {
            const OperationEventHandler scope(*this, QStringLiteral("ProbeBridge::run"));
            const std::function<void()> now = work;  // which may set another
            now();
            return QStringLiteral("done");
        });
    }

protected:
    void beginCall() override { Journal::note(QStringLiteral("pause")); }
    void endCall() override { Journal::note(QStringLiteral("resume")); }
};
