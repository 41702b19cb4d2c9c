#include "LiveObjects.h"

#include <QCoreApplication>
#include <QDir>
#include <QTimer>

#include <private/qhooks_p.h>

#include <algorithm>
#include <mutex>
#include <unordered_set>

namespace {

std::mutex mutex;

/// Never destroyed: objects die until the very end of the process.
std::unordered_set<QObject*>& liveObjects() {
    static auto& live = *new std::unordered_set<QObject*>;
    return live;
}

void added(QObject* object) {
    const std::lock_guard lock(mutex);
    liveObjects().insert(object);
}

void removed(QObject* object) {
    const std::lock_guard lock(mutex);
    liveObjects().erase(object);
}

void watch() {
    static const bool watching = [] {
        qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&added);
        qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&removed);
        return true;
    }();
    static_cast<void>(watching);
}

}  // namespace

Leftovers Leftovers::now() {
    watch();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    const int threads =
        int(QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
    const std::lock_guard lock(mutex);
    const auto timers = std::count_if(liveObjects().begin(), liveObjects().end(),
                                      [](QObject* object) { return qobject_cast<QTimer*>(object) != nullptr; });
    return {int(liveObjects().size()), int(timers), threads};
}

int activeTimers(int interval) {
    const std::lock_guard lock(mutex);
    return int(std::count_if(liveObjects().begin(), liveObjects().end(), [interval](QObject* object) {
        const auto* timer = qobject_cast<QTimer*>(object);
        return timer != nullptr && timer->isActive() && timer->interval() == interval;
    }));
}

void PrintTo(const Leftovers& leftovers, std::ostream* out) {
    *out << leftovers.objects << " objects, " << leftovers.timers << " timers, " << leftovers.threads << " threads";
}
