#pragma once

#include <QString>

/// A message as a box shows it. `head` is all of it, or its beginning when it is too long for a screen.
struct BoxText {
    QString head;
    bool cut = false;
};

/// Makes `text` fit: words that are wider than a box may be broken anywhere, which is not seen otherwise.
BoxText fitIntoBox(const QString& text);
