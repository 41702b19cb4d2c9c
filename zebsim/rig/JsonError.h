#pragma once

#include <QString>

#include <stdexcept>

/// A file that can't be used: a rig, models, camera settings. The text names the file, and the line and the member
/// where it is one of them.
class JsonError : public std::runtime_error {
public:
    explicit JsonError(const QString& text) : std::runtime_error(text.toStdString()) {}
};
