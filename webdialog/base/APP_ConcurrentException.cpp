#include "APP_ConcurrentException.h"

void APP_ConcurrentException::raise() const {
    throw *this;
}

APP_ConcurrentException* APP_ConcurrentException::clone() const {
    return new APP_ConcurrentException(*this);
}
