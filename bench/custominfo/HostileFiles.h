#pragma once

#include <QByteArray>
#include <QList>

/// A file that was made to cost its reader time or memory: `head`, `piece` again and again, `tail`.
struct HostileFile {
    const char* name;
    QByteArray head;
    /// Each `@` is another number.
    QByteArray piece;
    QByteArray tail;
    /// Whether it holds items all the same, where it is no larger than a file may be.
    bool holdsItems = false;
    /// What it may have at most to reach what it is after, in bytes; 0 is no limit.
    int most = 0;
};

QList<HostileFile> hostileFiles();
/// Of about `size` bytes.
QByteArray bytesOf(const HostileFile& file, int size);
