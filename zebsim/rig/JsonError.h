#pragma once

#include <QString>

#include <stdexcept>

/// A file that can't be used: a rig, models, camera settings. The text names the file, and the line and the member
/// where it is one of them.
class JsonError : public std::runtime_error {
public:
    /// Of a long text, as with a name from the file, the middle is left out.
    explicit JsonError(const QString& text) : std::runtime_error(shortened(text).toStdString()) {}

private:
    static QString shortened(const QString& text) {
        constexpr int Most = 1000;
        constexpr int End = 200;
        return text.size() <= Most ? text : QString(text.left(Most - End) % QStringLiteral(" … ") % text.right(End));
    }
};
