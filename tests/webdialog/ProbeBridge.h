#pragma once

#include "BridgeCall.h"
#include "Course.h"
#include "JS_Mediator_Dialog.h"

/// A bridge whose one slot does what the test says. Its pause stands in the course.
class ProbeBridge : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    explicit ProbeBridge(ZebHost* host) : JS_Mediator_Dialog(host, QStringLiteral("probe")) {}

    std::function<void()> work = [] {};

public Q_SLOTS:
    QString run() {
        QString answer = QStringLiteral("fallback");
        call(*this, Updating, __func__, {}, [&] {
            const std::function<void()> now = work;  // which may set another
            now();
            answer = QStringLiteral("done");
        });
        return answer;
    }

protected:
    void beginCall() override { Course::note(QStringLiteral("pause")); }
    void endCall() override { Course::note(QStringLiteral("resume")); }
};
