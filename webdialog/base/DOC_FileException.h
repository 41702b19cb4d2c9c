#pragma once

#include "DOC_Exception.h"

/// A failure of a file; the log has its path on a line of its own.
class DOC_FileException : public DOC_Exception {
public:
    DOC_FileException(const QString& message, const QString& path, int code);
};
