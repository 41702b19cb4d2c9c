#include "EventWait.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <exception>

namespace {
constexpr int LookAgainMs = 5;
}

bool waitUntil(const std::function<bool()>& done, const std::function<bool()>& givenUp) {
    if (done()) {
        return true;
    }
    if (givenUp()) {
        return false;
    }
    QEventLoop loop;
    QTimer timer;
    bool reached = false;
    std::exception_ptr failure;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        try {
            reached = done();
        } catch (...) {
            failure = std::current_exception();
        }
        if (reached || failure || givenUp()) {
            loop.quit();
        }
    });
    timer.start(LookAgainMs);
    // A loop of its own, and not processEvents: only a loop deletes what was given to deleteLater inside it.
    loop.exec();
    if (failure) {
        std::rethrow_exception(failure);
    }
    return reached;
}

void letPass(int ms, const std::function<bool()>& givenUp) {
    QElapsedTimer passed;
    passed.start();
    waitUntil([&] { return passed.hasExpired(ms); }, givenUp);
}
