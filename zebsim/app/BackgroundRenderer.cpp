#include "BackgroundRenderer.h"

#include "FramePicture.h"

#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>

namespace {

/// One core is left to the windows.
QThreadPool& threads() {
    static QThreadPool pool;
    static const bool isSet = [] {
        pool.setMaxThreadCount(std::max(1, QThread::idealThreadCount() - 1));
        return true;
    }();
    Q_UNUSED(isSet)
    return pool;
}

}  // namespace

BackgroundRenderer::BackgroundRenderer(QObject* parent) : QObject(parent) {
    connect(&m_work, &QFutureWatcher<QImage>::finished, this, &BackgroundRenderer::take);
}

BackgroundRenderer::~BackgroundRenderer() {
    m_isOver = true;
    m_work.waitForFinished();
}

bool BackgroundRenderer::isFor(const CameraFrame& frame) {
    return frame.pictures || seesNeighbours(frame.effects);
}

QImage BackgroundRenderer::latest(const CameraFrame& wanted, const QSize& size) {
    m_wanted = {wanted, size};
    if (!m_work.isRunning()) {
        begin();
    }
    return m_effects == wanted.effects ? m_latest : QImage();
}

void BackgroundRenderer::begin() {
    if (m_begun.frame == m_wanted.frame && m_begun.size == m_wanted.size) {
        return;
    }
    m_begun = m_wanted;
    m_work.setFuture(QtConcurrent::run(&threads(), [this, wish = m_begun] {
        return m_isOver ? QImage() : drawFrameOrFailure(wish.frame, wish.size);
    }));
}

void BackgroundRenderer::take() {
    m_latest = m_work.result();
    m_effects = m_begun.frame.effects;
    Q_EMIT made();
    begin();
}
