#pragma once

#include <QString>

class ZebHost;

/// Folders by camera as a page shows them, a JSON array each. GUI thread; throw what host and cameras throw.
///
/// The names of folders: `recid` from 1, `name`, `path`.
QString multiPaths(const ZebHost& host);
/// The devices, each once: `recid` from 1, `device` is its address, `paths` the folders by `key` and `val`; where there
/// are any, `pathselector` is the key of its own, or else of the first, and `path` that folder.
QString multiPathDevices(ZebHost& host);
