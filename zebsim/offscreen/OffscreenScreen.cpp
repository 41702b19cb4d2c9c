#include "OffscreenScreen.h"

#include <QGuiApplication>
#include <QRect>
#include <qpa/qwindowsysteminterface.h>

void enlargeOffscreenScreen(const QSize& size) {
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        return;
    const QRect geometry(QPoint(0, 0), size);
    QWindowSystemInterface::handleScreenGeometryChange(QGuiApplication::primaryScreen(), geometry, geometry);
    QCoreApplication::processEvents();
}
