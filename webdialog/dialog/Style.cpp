#include "Style.h"

#include "TextResource.h"
#include "ZebHost.h"

#include <QString>
#include <QWidget>

namespace {

void applyStyleSheet(const ZebHost& host, QWidget& widget, const QString& stem) {
    const bool dark = styleName(host).compare(QLatin1String("dark"), Qt::CaseInsensitive) == 0;
    const QString path =
        QStringLiteral("://ui-") % stem % (dark ? QStringLiteral("-dark.css") : QStringLiteral("-light.css"));
    widget.setStyleSheet(readTextResource(path).value_or(QString()));
}

}  // namespace

QString styleName(const ZebHost& host) {
    return host.getPrefString(QStringLiteral("env/style"), QStringLiteral("light"));
}

void applyNativeStyle(const ZebHost& host, QWidget& widget) {
    applyStyleSheet(host, widget, QStringLiteral("native"));
}

void applyMessageBoxStyle(const ZebHost& host, QWidget& widget) {
    applyStyleSheet(host, widget, QStringLiteral("messageBox"));
}
