#pragma once

#include <QString>

/// Names in a file of camera settings.
namespace settingsform {

constexpr int PresentVersion = 1;

const QString Version = QStringLiteral("format");
const QString Cameras = QStringLiteral("cameras");
const QString Address = QStringLiteral("address");
const QString Heads = QStringLiteral("heads");
const QString Head = QStringLiteral("head");
const QString Settings = QStringLiteral("settings");

}  // namespace settingsform
