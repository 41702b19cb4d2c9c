#pragma once

#include "APP_Exception.h"

/// A failure of a helper.
class UTL_Exception : public APP_Exception {
public:
    using APP_Exception::APP_Exception;
};
