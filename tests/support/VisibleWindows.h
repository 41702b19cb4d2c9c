#pragma once

#include <QApplication>
#include <QStringList>
#include <QWidget>

/// The windows on the screen, by their class.
inline QStringList visibleWindows() {
    QStringList names;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            names.append(QLatin1String(window->metaObject()->className()));
        }
    }
    return names;
}
