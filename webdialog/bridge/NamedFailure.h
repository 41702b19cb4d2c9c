#pragma once

#include "FailureText.h"
#include "GatheredFailures.h"

#include <stdexcept>

class DOC_Interface;

/// `failure` with the name of the camera that it is about, or its address. It stays as it is when it has the name
/// already, or the camera tells neither. Asks the camera; does not throw.
QString namedFailure(const QString& failure, DOC_Interface& doc);

/// Runs `step` on a camera; what it throws says which camera it was.
template <typename Step>
void onCamera(DOC_Interface& doc, Step&& step) {
    try {
        step();
    } catch (...) {
        throw std::runtime_error(namedFailure(currentFailureText(), doc).toStdString());
    }
}

/// The same, and no other camera is kept from its step.
template <typename Step>
void attemptOn(DOC_Interface& doc, GatheredFailures& failures, Step&& step) {
    failures.attempt([&] { onCamera(doc, step); });
}
