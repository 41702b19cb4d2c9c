#include "BridgeCall.h"
#include "ZebHost.h"

#include <QDebug>

void JS_Mediator::info(const QString& message) {
    call(*this, Plain, __func__, {}, [&] { host().info(message, nullptr); });
}

void JS_Mediator::warn(const QString& message) {
    call(*this, Plain, __func__, {}, [&] { host().warn(message, nullptr); });
}

void JS_Mediator::warn(const QString& message, const QStringList& messages) {
    call(*this, Plain, __func__, {}, [&] { host().warnList(message, messages, nullptr); });
}

void JS_Mediator::alert(const QString& message) {
    call(*this, Plain, __func__, {}, [&] { host().alert(message, nullptr); });
}

void JS_Mediator::alert(const QString& message, const QStringList& messages) {
    call(*this, Plain, __func__, {}, [&] { host().alertList(message, messages, nullptr); });
}

bool JS_Mediator::confirm(const QString& message) {
    return call(*this, Plain, __func__, {}, [&] { return host().confirmModal(message, nullptr, {}); });
}

QString JS_Mediator::translate(const QString& string) {
    return call(*this, Query, __func__, {{"string", string}}, [&] { return host().translate(string); });
}

QString JS_Mediator::translate(const QString& string, const QString& arg) {
    return call(*this, Query, __func__, {{"string", string}},
                [&] { return host().translate(string).arg(host().translate(arg)); });
}

void JS_Mediator::infoLog(const QString& msg) {
    qInfo() << msg;
}

void JS_Mediator::errorLog(const QString& msg) {
    qCritical() << msg;
}

void JS_Mediator::userOperationLogWebView(const QString& url, const QString& operation, const QString& control,
                                          const QString& id, const QString& className, const QVariant& value) {
    logUserOperation(url, operation, control, id, className, value);
}

void JS_Mediator::userOperationErrorLog(const QString& message) {
    logUserError(message);
}
