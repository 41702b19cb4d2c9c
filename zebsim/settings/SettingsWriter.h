#pragma once

#include "HeadSettings.h"

#include <QByteArray>
#include <QList>

/// The text of a file with these settings, each in a line of its own. Heads of one device stand one after the other.
/// Any thread.
QByteArray writeSettings(const QList<HeadSettings>& heads);
