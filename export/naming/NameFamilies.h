#pragma once

#include "NumberText.h"
#include "PrefReader.h"

#include <optional>

/// The types of files, `zeb::FileType`, fall into families, each with preferences of its own.

/// What the keys of a type's preferences begin with: "export/", "convert/", "snap/", "report/" or "layout/".
QString nameFamily(int type);

/// Slots number the names that numbers can be added to, from 0 to 16; -1 is none, as of a layout's group directory.
int groupDirSlot(int type);
int subDirSlot(int type);
int fileNameSlot(int type);
/// Key of the preferences of the slot's name, as "export/groupdir"; empty for a slot that has none.
QString slotKey(int slot);
/// What the keys of its digits begin with, as "export/groupdiraddnumber"; empty for a slot that has none.
QString numberKey(int slot);

/// The digits that the preferences give to a slot's numbers. Without a reader they are 3, 3 and 4.
NumberDigits slotDigits(const PrefReader& pref, int slot);

/// Devices that the host knows, and heads of the one that a name is for.
struct DeviceCounts {
    int devices = 0;
    int heads = 0;
};

/// Those that the counts need; none for the session, and for the head where there is one alone.
NumberDigits autoDigits(const DeviceCounts& counts);

/// The digits that a name gets: with the slot's format "auto", as many as the counts need. A file's name says nothing
/// of cameras and heads. `counts` is empty for a name that is for no document.
NumberDigits digitsFor(const PrefReader& pref, int slot, bool isFileMode, const std::optional<DeviceCounts>& counts);
