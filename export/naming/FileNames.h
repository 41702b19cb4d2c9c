#pragma once

class QString;

/// Whether none of its characters keeps `name` from being the name of a file, without its folder, on any system.
bool isGoodFileName(const QString& name);

/// Whether none of its characters keeps `path` from being the path of a file, with folders and a drive.
bool isGoodPath(const QString& path);
