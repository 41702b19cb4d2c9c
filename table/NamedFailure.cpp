#include "NamedFailure.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"

QString namedFailure(const QString& failure, DOC_Interface& doc) {
    if (failure.isEmpty()) {
        return failure;
    }
    for (const auto& nameOf : {&DOC_Control::getCameraName, &DOC_Control::getAddress}) {
        try {
            const QString name = (doc.control().*nameOf)(1);
            return failure.contains(name) ? failure : QString(name % QStringLiteral(": ") % failure);
        } catch (...) {
            continue;
        }
    }
    return failure;
}
