#include "PLG_Common.h"

#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "ZebDocManager.h"
#include "ZebHost.h"
#include "ZebUndo.h"
#include "ZebViewOps.h"

#include <QApplication>
#include <QKeyEvent>

#include <optional>
#include <utility>

bool PLG_Common::hasDoc(DOCKEY key) {
    return m_host->docManager().getDoc(key, 1) != nullptr;
}

QPoint PLG_Common::getDocPoint(DOCKEY key) {
    DOC_Interface* doc = m_host->docManager().getDoc(key, 1);
    return doc ? doc->image().getPoint() : QPoint();
}

ToolRectangle PLG_Common::toolRectangleOn(DOC_Interface& doc) const {
    const ZebViewOps& views = m_host->viewOps();
    const DOCKEY key = doc.getKey();
    const ToolRectangle::View view{qRound(views.getRotation(key) * 360.0), views.isHorizontalFlip(key),
                                   views.isVerticalFlip(key), views.getZoom(key)};
    return ToolRectangle(doc.image().getImageSize(), view, m_rules);
}

void PLG_Common::setToolRectOn(DOC_Interface& doc, const QRect& rect) {
    if (!rect.isEmpty()) {
        doc.image().setToolRect(m_name, rect);
    }
}

void PLG_Common::mousePress(const QPoint& point, DOCKEY key) {
    if (std::exchange(m_dragging, true)) {
        return;
    }
    m_host->undo().beginMacro(QString());
    m_dragStart = point;
    m_lastPoint = point;
    DOC_Interface* doc = m_host->docManager().getDoc(key, 1);
    const QRect rect = doc ? doc->image().getToolRect(m_name) : QRect();
    if (rect.isNull() || m_host->isToolActive(QStringLiteral("t_crosscursor"))) {
        return;
    }
    m_dragRect = rect;
    m_dragHandle = toolRectangleOn(*doc).handleAt(rect, point);
}

void PLG_Common::mouseMove(const QPoint& point, DOCKEY key) {
    m_lastPoint = point;
    DOC_Interface* doc = m_host->docManager().getDoc(key, 1);
    if (!doc) {
        return;
    }
    if (!m_dragging) {
        const QRect rect = doc->image().getToolRect(m_name);
        if (!rect.isNull()) {
            setCursorForHandle(doc, toolRectangleOn(*doc).handleAt(rect, point));
        }
        return;
    }
    if (m_dragHandle == ToolRectangle::Outside) {
        return;
    }
    const QRect rect = toolRectangleOn(*doc).dragged(m_dragRect, m_dragHandle, m_dragStart, point);
    // An edge that stops follows from where it is; a move is measured from its start.
    if (m_dragHandle != ToolRectangle::Inside && !rect.isEmpty()) {
        m_dragRect = rect;
    }
    setToolRectOn(*doc, rect);
}

void PLG_Common::mouseRelease(DOCKEY key) {
    mouseReleaseAt(m_lastPoint, key);
}

void PLG_Common::mouseReleaseAt(const QPoint& point, DOCKEY) {
    m_lastPoint = point;
    if (!std::exchange(m_dragging, false)) {
        return;
    }
    m_dragHandle = ToolRectangle::Outside;
    resetCursor();
    m_host->undo().endMacro();
}

void PLG_Common::keyPress(QKeyEvent* event) {
    DOC_Interface* doc = m_host->docManager().getCurrentDoc();
    const QRect rect = doc ? doc->image().getToolRect(m_name) : QRect();
    if (rect.isNull()) {
        return;
    }
    const auto stepped = toolRectangleOn(*doc).stepped(rect, event->key(), event->modifiers());
    if (!stepped) {
        return;
    }
    setToolRectOn(*doc, *stepped);
    m_keyStepped = true;
}

void PLG_Common::setCursorForHandle(DOC_Interface* doc, int handle) {
    const auto shape = doc ? toolRectangleOn(*doc).cursorFor(handle) : std::nullopt;
    if (!shape) {
        resetCursor();
        return;
    }
    if (m_cursorHandle < 0) {
        QApplication::setOverrideCursor(*shape);
    } else {
        QApplication::changeOverrideCursor(*shape);
    }
    m_cursorHandle = handle;
}

void PLG_Common::resetCursor() {
    // Only our own: below it may lie a cursor of the host's.
    if (std::exchange(m_cursorHandle, -1) >= 0) {
        QApplication::restoreOverrideCursor();
    }
}

QRect PLG_Common::toSensorRect(DOC_Interface* doc, const QRect& rect) {
    double factor = 1.0;
    if (doc && m_host->isCapable(QStringLiteral("binning"), doc, 0)) {
        factor = 1 << doc->image().getBinningPower();
    }
    if (doc && doc->image().getScale() > 0.0) {
        factor *= doc->image().getScale();
    }
    return ToolRectangle::toSensor(rect, factor);
}

QVariantMap PLG_Common::getRectParameters(DOC_Interface* doc, bool shown) {
    if (!doc) {
        return ToolRectangle(QSize(0, 0), {}, m_rules).parameters(m_rect, false);
    }
    const QRect rect = doc->image().getToolRect(m_name);
    return toolRectangleOn(*doc).parameters(rect.isNull() ? m_rect : rect, shown);
}
