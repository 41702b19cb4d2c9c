#include "OffscreenScreen.h"

#include <qpa/qwindowsysteminterface.h>
#include <QGuiApplication>
#include <QList>
#include <QPointer>
#include <QRect>
#include <QWindow>

#include <algorithm>

namespace {

/// The platform makes each window active that is shown, also one that takes no focus, and none when that one goes.
class FocusKeeper {
public:
    void follow(QWindow* now) {
        m_order.removeAll(now);
        m_order.erase(std::remove_if(m_order.begin(), m_order.end(), [](const auto& window) { return !window; }),
                      m_order.end());
        if (now != nullptr && !now->flags().testFlag(Qt::WindowDoesNotAcceptFocus)) {
            m_order.append(now);
            return;
        }
        const auto last =
            std::find_if(m_order.rbegin(), m_order.rend(), [](const auto& window) { return window->isVisible(); });
        if (last != m_order.rend()) {
            (*last)->requestActivate();
        }
    }

private:
    /// The one that was active last stands at the end.
    QList<QPointer<QWindow>> m_order;
};

}  // namespace

void setUpOffscreen(const QSize& size) {
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        return;
    }
    const QRect geometry(QPoint(0, 0), size);
    QWindowSystemInterface::handleScreenGeometryChange(QGuiApplication::primaryScreen(), geometry, geometry);
    QCoreApplication::processEvents();
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp,
                     [keeper = FocusKeeper()](QWindow* now) mutable { keeper.follow(now); });
}
