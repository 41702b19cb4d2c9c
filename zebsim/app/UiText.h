#pragma once

#include <QCoreApplication>
#include <QString>

/// A text of the viewer's own windows in the user's language, from the host's catalogue.
inline QString uiText(const char* key) {
    return QCoreApplication::translate("zeb4", key);
}
