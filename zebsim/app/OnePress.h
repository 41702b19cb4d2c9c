#pragma once

#include "HeldKeys.h"

/// Lets a key that is held press once in the whole application, be it a shortcut, a button or a box that has come up
/// meanwhile. In a text it goes on, and pages see to it by themselves. GUI thread.
class OnePress : public HeldKeys {
    Q_OBJECT

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};
