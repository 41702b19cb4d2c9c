#pragma once

#include <QString>

/// What a box or a label shows of `text`: "<br>" is a line feed, any other markup stays text. Show the result
/// with `Qt::PlainText`.
QString plainText(const QString& text);
