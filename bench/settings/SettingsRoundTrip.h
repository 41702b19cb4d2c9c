#pragma once

#include <QByteArray>
#include <QString>

/// What is wrong with how the bytes of a settings file are read, and what comes of them is written and read again;
/// empty for nothing.
QString faultOfSettings(const QByteArray& bytes);
