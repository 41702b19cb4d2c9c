#pragma once

#include <QCoreApplication>
#include <QString>

/// A text of the viewer's own windows in the user's language, from the host's catalogue.
inline QString uiText(const char* key) {
    return QCoreApplication::translate("zeb4", key);
}

/// The same of a text that is known only when the program runs, as a reason; one without a translation stays.
inline QString uiText(const QString& key) {
    return uiText(key.toUtf8().constData());
}
