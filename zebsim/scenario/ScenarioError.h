#pragma once

#include <QString>

#include <stdexcept>

/// What a scenario did wrong, in words for its author. The script sees it as an exception.
class ScenarioError : public std::runtime_error {
public:
    explicit ScenarioError(const QString& text) : std::runtime_error(text.toStdString()) {}

    QString text() const { return QString::fromUtf8(what()); }
};
