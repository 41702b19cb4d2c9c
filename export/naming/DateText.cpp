#include "DateText.h"

#include <QDateTime>
#include <QLocale>

QString dateText(const QDateTime& time, const QString& format) {
    return QLocale::c().toString(time, format);
}
