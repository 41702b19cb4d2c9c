#pragma once

#include "DOC_FileException.h"
#include "TextKey.h"

/// A file that could not be written.
class DOC_WriteFileException : public DOC_FileException {
public:
    explicit DOC_WriteFileException(const QString& path) : DOC_FileException(TextKey("File write failed."), path, 2) {}
};
