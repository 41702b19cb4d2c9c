#pragma once

#include <QString>

#include <functional>

/// What a user says to a file that stands in the way.
enum class Overwrite { This, All, SkipCamera, Cancel };

/// The files that a save may write: new ones, and those that the user gives away. GUI thread.
class FileClaims {
public:
    /// `ask` is called with the path of a file that exists already.
    explicit FileClaims(std::function<Overwrite(const QString& file)> ask) : m_ask(std::move(ask)) {}

    /// Whether `file` may be written. A new one exists from now on, empty, so that nobody else takes its name. False
    /// when the user keeps the old one. Throws `FileError` when there can't be such a file.
    bool claim(const QString& file);
    /// Whether it may be claimed later, as it looks now: the user has been asked about it then, and nothing was made.
    bool promise(const QString& file);
    /// Gives a new file's name back: nothing has become of it. An old file stays.
    void release();
    /// The claimed file is written.
    void keep() { m_new.clear(); }
    /// The user wants no more files.
    bool isCancelled() const { return m_cancelled; }

private:
    bool mayReplace(const QString& file);

    std::function<Overwrite(const QString& file)> m_ask;
    /// The claimed file, if it is a new one.
    QString m_new;
    /// An old one that the user has given away.
    QString m_promised;
    bool m_all = false;
    bool m_cancelled = false;
};
