#pragma once

#include <QStringList>

class DOC_Interface;

/// What is wrong with the device that `doc` is a head of. A device that is not connected has nothing to say, as one
/// that is none. Throws what the device throws.
QStringList alertsOfDevice(const DOC_Interface& doc);
