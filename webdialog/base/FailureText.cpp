#include "FailureText.h"

#include "APP_ConcurrentException.h"

QString currentFailureText() {
    try {
        throw;
    } catch (const APP_ConcurrentException& e) {
        return QString::fromUtf8(e.inner().what());
    } catch (const std::exception& e) {
        return QString::fromUtf8(e.what());
    } catch (...) {
        return QStringLiteral("Unknown failure.");
    }
}
