#pragma once

#include "CustomInfo.h"

#include <QPixmap>
#include <QStringList>

class QPainter;
class QRect;

/// The shown items of custom information as they lie over an image, below the camera's name: a line each, as many as
/// fit, and how many are left out. They are drawn anew only when they, or their room, have changed. GUI thread.
class ItemOverlay {
public:
    /// Whether other items than before are shown.
    bool setInfo(const CustomInfo& info);
    /// Over the image that stands in `image`; the lines may reach beyond it as far as `width`.
    void paint(QPainter& painter, const QRect& image, int width);

private:
    QPixmap drawn(const QSize& room, int fontSize, double pixelRatio) const;

    CustomInfo m_info;
    QStringList m_texts;
    QPixmap m_picture;
    QSize m_room;
};
