#pragma once

#include <QByteArray>
#include <QString>

/// Puts `bytes` into the file of that path, all of them or none: what stood there before stays until the new ones are
/// on the disk. Answers why that could not be done, in the words of the system, or as a text that may be translated;
/// empty when it was. `isOpened` tells whether the file could be opened at all. Any thread.
///
/// A link is followed. In a folder that takes no new file one that can be written is written in place: a full disk
/// leaves the old bytes there too, an end of the program in the middle does not.
[[nodiscard]] QString writeWholeFile(const QString& path, const QByteArray& bytes, bool* isOpened = nullptr);

/// Why what stands at that path is no file of its own but a pipe, a device or a folder: whoever opens a pipe may wait
/// for ever. In the words of the system, or as a text that may be translated; empty for a file and for nothing. Any
/// thread.
QString whyNoPlainFile(const QString& path);

/// Reads `out` from the file of its own at that path, at most `most` bytes: one more than is wanted shows that it is
/// too large, for some files do not tell their size. Answers why it can't be read, in the same words. Any thread.
[[nodiscard]] QString readPlainFile(const QString& path, qint64 most, QByteArray& out);
