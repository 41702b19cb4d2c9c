#include "WindowPlacement.h"

#include "ZebHost.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

QPoint centeredTopLeft(const QRect& area, const QSize& frame) {
    return area.topLeft() + QPoint((area.width() - frame.width()) / 2, (area.height() - frame.height()) / 2);
}

void centerWithoutMainWindow(const ZebHost& host, QWidget& window) {
    if (host.getMainWindow()) {
        return;
    }
    const QList<QScreen*> screens = QGuiApplication::screens();
    const QScreen* screen = screens.value(host.getPrefInt(QStringLiteral("main/scrno")), window.screen());
    window.move(centeredTopLeft(screen->geometry(), window.frameGeometry().size()));
}
