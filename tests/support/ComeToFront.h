#pragma once

#include "Until.h"

#include <QWidget>

#include <gtest/gtest.h>

/// Shows a window and waits until keys go to it.
inline void comeToFront(QWidget& window) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(until([&window] { return window.isActiveWindow(); }));
}
