#pragma once

#include "PLG_Common.h"

/// A plug-in that puts a button into the host.
class PLG_Button : public PLG_Common {
    Q_OBJECT

public:
    PLG_Button();
};
