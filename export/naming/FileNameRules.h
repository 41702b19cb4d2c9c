#pragma once

class QString;

/// Whether `name`, a file's without its folder, holds none of \ / : * ? | " < > %, no tab and no line feed. Other
/// control characters and a dot at the end pass, though some systems refuse them.
bool isGoodFileName(const QString& name);

/// The same of a whole path, in which \ / and : may stand.
bool isGoodPath(const QString& path);

/// `text` with `replacement`, which may be empty, for each character that a name must not hold; for each dot too when
/// it is "." or "..", which are folders everywhere.
QString sanitised(QString text, const QString& replacement);
