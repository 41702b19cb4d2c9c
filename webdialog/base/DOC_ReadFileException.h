#pragma once

#include "DOC_FileException.h"
#include "TextKey.h"

/// A file that could not be read.
class DOC_ReadFileException : public DOC_FileException {
public:
    explicit DOC_ReadFileException(const QString& path) : DOC_FileException(TextKey("File read failed."), path, 1) {}
};
