#pragma once

#include <QString>

/// A text for the user as it stands in the source, which is its key in the host's catalogues. It marks the literal for
/// `lupdate`, as `QT_TR_NOOP` does one that stays a `const char*`, and is translated where it is shown.
#define TextKey(text) QStringLiteral(text)
