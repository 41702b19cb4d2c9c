#include "ShutterText.h"

#include "Preferences.h"
#include "ZebTypes.h"

ShutterText::ShutterText(const Preferences& prefs)
    : m_list(prefs.value(QStringLiteral("display/ShutterSpeed")).toInt() == zeb::ShutterDisplaySecondList ? 2 : 1) {}

int ShutterText::valueIn(int list, int fraction) {
    return list == 2 && fraction > 0 ? zeb::NanosecondsPerSecond / fraction : fraction;
}

QString ShutterText::label(int value) const {
    if (m_list == 1) {
        return QStringLiteral("1/%1 sec").arg(value);
    }
    return value < 1000000 ? QStringLiteral("%1 \u00b5s").arg(value / 1e3) : QStringLiteral("%1 ms").arg(value / 1e6);
}

QString ShutterText::entry(int fraction) const {
    const int value = valueIn(m_list, fraction);
    return QStringLiteral("%1;%2;%3").arg(QString::number(value), label(value), QString::number(m_list));
}
