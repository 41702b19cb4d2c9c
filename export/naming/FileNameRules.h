#pragma once

class QString;

/// Whether `name`, a file's without its folder, holds none of \ / : * ? | " < > %, no tab and no line feed. Other
/// control characters and a dot at the end pass, though some systems refuse them.
bool isGoodFileName(const QString& name);

/// The same of a whole path, in which \ / and : may stand.
bool isGoodPath(const QString& path);
