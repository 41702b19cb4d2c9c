#pragma once

#include <QString>

#include <stdexcept>

/// A rig or models file that can't be used. The text names the file and the member.
class RigError : public std::runtime_error {
public:
    explicit RigError(const QString& text) : std::runtime_error(text.toStdString()) {}
};
