#pragma once

#include "CameraFrame.h"

#include <QFutureWatcher>
#include <QImage>
#include <QObject>

#include <atomic>

/// The picture of a frame that takes too long to be drawn by the way, made on another thread: of those that are wanted
/// one after the other the last one. GUI thread.
class BackgroundRenderer : public QObject {
    Q_OBJECT

public:
    explicit BackgroundRenderer(QObject* parent);
    /// Waits for a picture that is being drawn; one that has not begun is not drawn any more.
    ~BackgroundRenderer() override;

    /// Whether a frame is to be drawn here.
    static bool isFor(const CameraFrame& frame);
    /// The last one made with the same effects, which may be of an earlier frame; null when there is none yet.
    QImage latest(const CameraFrame& wanted, const QSize& size);

Q_SIGNALS:
    /// There is a newer one.
    void made();

private:
    struct Wish {
        CameraFrame frame;
        QSize size;
    };

    void begin();
    void take();

    QFutureWatcher<QImage> m_work;
    std::atomic<bool> m_isOver{false};
    Wish m_wanted;
    Wish m_begun;
    FrameEffects m_effects;
    QImage m_latest;
};
