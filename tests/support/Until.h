#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

/// Lets events pass until `isTrue`; false when that has not come within a minute.
template <typename Condition>
bool until(Condition isTrue) {
    constexpr int GiveUpMs = 60000;
    QElapsedTimer passed;
    passed.start();
    QTimer wake;
    wake.start(10);  // not everything that becomes true comes as an event of ours
    while (!isTrue() && passed.elapsed() < GiveUpMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return isTrue();
}
