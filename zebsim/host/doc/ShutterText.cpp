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
        return QLatin1String("1/") % QString::number(value) % QLatin1String(" sec");
    }
    return value < 1000000 ? QStringLiteral("%1 \u00b5s").arg(value / 1e3) : QStringLiteral("%1 ms").arg(value / 1e6);
}

QString ShutterText::entry(int fraction) const {
    const int value = valueIn(m_list, fraction);
    const QLatin1Char separator(';');
    return QString::number(value) % separator % label(value) % separator % QString::number(m_list);
}
