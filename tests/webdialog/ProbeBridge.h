#pragma once

#include "BridgeCall.h"
#include "Course.h"
#include "HostWindows.h"
#include "JS_Mediator_Dialog.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

/// A bridge whose one slot does what the test says. Its pause stands in the course.
class ProbeBridge : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    using JS_Mediator_Dialog::lastRangeMax;
    using JS_Mediator_Dialog::setUpdateMask;

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

/// Windows of which the test says how they go on. What is done to the floating lists stands in the course.
class NotedWindows : public HostWindows {
public:
    ZebPrefsDialog* prefs = nullptr;
    std::function<void(QFutureWatcherBase&)> onProgress;
    /// Where a list stands.
    QRect listRect;

    ZebPrefsDialog* prefsDialog() override { return prefs; }
    void runProgress(const QString& text, QFutureWatcherBase& watcher) override {
        onProgress ? onProgress(watcher) : HostWindows::runProgress(text, watcher);
    }
    void showDropDownBox(const QString& key, const QRect& at) override {
        Course::note(
            QStringLiteral("list %1 %2 %3 %4 %5").arg(key).arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height()));
    }
    void hideDropDownBox(const QString& key) override { Course::note(QStringLiteral("hide ") % key); }
    QRect dropDownBoxRect(const QString&) const override { return listRect; }
};

/// A bridge to a host with three cameras.
class BridgeTest : public testing::Test, public TestHost {
protected:
    BridgeTest() : TestHost(connected(3)) {
        host.setWindows(&windows);
        course.take();
    }

    MarkedTexts marked;
    Course course;
    NotedWindows windows;
    ProbeBridge bridge{&host};
};
