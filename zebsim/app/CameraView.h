#pragma once

#include "CameraFrame.h"
#include "ItemOverlay.h"

#include <QWidget>

#include <optional>

class BackgroundRenderer;

/// How an image stands in its window.
struct ImagePose {
    /// A fraction of a turn.
    double rotation = 0;
    bool flipHorizontal = false;
    bool flipVertical = false;
    /// 1 shows the whole image.
    double zoom = 1;

    bool operator==(const ImagePose& other) const;
};

/// Draws a frame as large as it fits. What cannot be seen is not drawn.
class CameraView : public QWidget {
    Q_OBJECT

public:
    explicit CameraView(QWidget* parent);

    /// Nothing: `text` stands in the place of an image.
    void showFrame(const std::optional<CameraFrame>& frame, const ImagePose& pose, const QString& text);
    /// Whose shown items lie over the image.
    void showItems(const CustomInfo& info);
    /// Whether the image has the frame of a selected camera.
    void setMarked(bool marked);
    bool isMarked() const { return m_marked; }
    const std::optional<CameraFrame>& frame() const { return m_frame; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Answers where it stands.
    QRect drawImage(QPainter& painter);
    QImage picture(const QSize& size);

    BackgroundRenderer* const m_renderer;
    std::optional<CameraFrame> m_frame;
    ImagePose m_pose;
    QString m_text;
    ItemOverlay m_items;
    bool m_marked = false;
};
