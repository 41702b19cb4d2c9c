#pragma once

#include "JS_Mediator.h"

#include <functional>
#include <type_traits>

/// The frame of a slot, `JS_Mediator::runCall`: to the log it is the method of the class that `bridge` is written as.
/// Answers what `work` answers; a default value when it has failed or was refused.
template <typename Bridge, typename Work>
auto call(Bridge& bridge, JS_Mediator::CallKind kind, const char* method, TraceArgs args, Work&& work) {
    using Answer = std::invoke_result_t<Work>;
    const QString name =
        QLatin1String(Bridge::staticMetaObject.className()) % QLatin1String("::") % QLatin1String(method);
    if constexpr (std::is_void_v<Answer>) {
        bridge.runCall(kind, name, args, std::ref(work));
    } else {
        Answer answer{};
        bridge.runCall(kind, name, args, [&] { answer = work(); });
        return answer;
    }
}
