#include "OffscreenScreen.h"

#include <qpa/qwindowsysteminterface.h>
#include <QGuiApplication>
#include <QRect>

void enlargeOffscreenScreen(const QSize& size) {
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) return;
    const QRect geometry(QPoint(0, 0), size);
    QWindowSystemInterface::handleScreenGeometryChange(QGuiApplication::primaryScreen(), geometry, geometry);
    QCoreApplication::processEvents();
}
