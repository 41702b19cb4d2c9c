#pragma once

#include <QStringList>

class DOC_Interface;

/// What is wrong with the device of a head, as `DOC_Interface::getParentDoc` answers it; may be null. One that is not
/// connected has nothing to say. Throws what the device throws.
QStringList alertsOfDevice(const DOC_Interface* device);
