#pragma once

#include <QString>

#include <stdexcept>

/// A file that can't be read or written. `what()` is the reason.
class FileError : public std::runtime_error {
public:
    FileError(QString file, const QString& reason)
        : std::runtime_error(reason.toStdString()), m_file(std::move(file)) {}

    const QString& file() const { return m_file; }

private:
    QString m_file;
};

/// What is told of one that can't be read, in the user's language.
QString unreadableText(const FileError& error);
