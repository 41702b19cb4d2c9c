#include "NamedFailure.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "LogFailure.h"

QString namedFailure(const QString& failure, DOC_Interface& doc) {
    QString name;
    logFailure([&] { name = doc.control().getCameraName(1); });
    if (name.isEmpty()) {
        logFailure([&] { name = doc.control().getAddress(1); });
    }
    return withName(failure, name);
}
