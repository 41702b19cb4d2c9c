#pragma once

#include "ZebTypes.h"

#include <QString>
#include <QVariant>

/// Keys as a page hands them over, texts or numbers, in its order; what is no key is left out.
DocKeyList toDocKeys(const QVariantList& keys);

/// The keys as one text for the log.
QString keyText(const QVariantList& keys);

/// Whether the head is ready to record or records.
bool isArmed(DOC_Interface& doc);
