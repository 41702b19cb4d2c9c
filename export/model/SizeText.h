#pragma once

#include <QtGlobal>

class QString;

/// So many bytes as the user reads them, with two decimals, as "1.50GB"; fewer than none are none. Pure.
QString sizeText(qint64 bytes);
