#pragma once

#include <QMap>
#include <QPair>

/// First and last frame of a recording, by the record rate in frames a second.
using RecordAreas = QMap<int, QPair<int, int>>;
