#pragma once

class QDateTime;
class QString;

/// `time` in `format`, in English whatever the user's language. Any thread.
QString dateText(const QDateTime& time, const QString& format);
