#include "FileError.h"

#include "UiText.h"

#include <QDir>

QString unreadableText(const FileError& error) {
    return uiText("%1 can't be read: %2")
        .arg(QDir::toNativeSeparators(error.file()), uiText(QString::fromUtf8(error.what())));
}
