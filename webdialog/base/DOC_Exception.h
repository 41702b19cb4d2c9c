#pragma once

#include "APP_Exception.h"

/// A failure of a document or a device.
class DOC_Exception : public APP_Exception {
public:
    using APP_Exception::APP_Exception;
};
