#include "LogFailure.h"

#include <QDebug>

#include <exception>

void logCurrentFailure() noexcept {
    try {
        throw;
    } catch (const std::exception& e) {
        qCritical() << QString::fromUtf8(e.what());
    } catch (...) {
        qCritical() << "Unknown failure.";
    }
}
