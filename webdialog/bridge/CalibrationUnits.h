#pragma once

class QString;
class ZebHost;

/// The units of length that a user can calibrate an image in, those of the metric or the imperial system as the
/// preference says: a JSON array of `value`, the unit's label, and `view`, its short name in the user's language.
QString calibrationUnits(const ZebHost& host);
