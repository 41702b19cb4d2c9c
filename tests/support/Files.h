#pragma once

#include <QFile>

#include <gtest/gtest.h>

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}
