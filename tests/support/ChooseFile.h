#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include <gtest/gtest.h>

/// Chooses a path in the next file dialog; an empty one cancels it.
inline void chooseFile(const QString& path) {
    QTimer::singleShot(0, [path] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        // A file that is selected in another folder is known to the dialog only when it has read the folder.
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(dialog, path.isEmpty() ? "reject" : "accept", Qt::QueuedConnection);
    });
}
