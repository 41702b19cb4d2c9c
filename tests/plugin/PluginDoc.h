#pragma once

#include "DOC_Frames.h"
#include "DOC_Image.h"
#include "DOC_Lock.h"
#include "FakeCamera.h"

#include <gmock/gmock.h>

/// A camera that may hold a recording. It notes what is erased.
class RecordingControl : public FakeControl {
public:
    explicit RecordingControl(DOCKEY key) : m_key(key) {}

    bool hasData = false;
    bool hasRecordedData() const override { return hasData; }
    void eraseRecordedData(int mode) override { Journal::note(QStringLiteral("erase %1 %2").arg(m_key).arg(mode)); }

private:
    const DOCKEY m_key;
};

/// A document with an image of 640 x 480 and the rectangle of one tool.
class PluginDoc : public FakeDoc, public DOC_Image, public DOC_Lock, public DOC_Frames {
public:
    explicit PluginDoc(DOCKEY key) : FakeDoc(key), camera(key) {}

    RecordingControl camera;
    bool connected = true;
    bool locked = false;
    QRect toolRect;
    bool toolChecked = false;
    double scale = 0.0;
    int binning = 0;

    DOC_Lock& lock() override { return *this; }
    DOC_Frames& frames() override { return *this; }
    DOC_Image& image() override { return *this; }
    DOC_Control& control() override { return camera; }
    bool isConnected() const override { return connected; }

    QString getComment() const override { return {}; }
    void setComment(const QString&) override {}
    std::optional<zeb::ImageFormat> getImageFormat(int, int) const override { return {}; }
    QSize getImageSize() const override { return {640, 480}; }
    double getScale() const override { return scale; }
    int getBinningPower() const override { return binning; }
    QPoint getPoint() const override { return {11, 22}; }
    QRect getToolRect(const QString&) const override { return toolRect; }
    void setToolRect(const QString& tool, const QRect& rect) override {
        Journal::note(QStringLiteral("setToolRect %1 (%2,%3)-(%4,%5)")
                          .arg(tool)
                          .arg(rect.left())
                          .arg(rect.top())
                          .arg(rect.right())
                          .arg(rect.bottom()));
        toolRect = rect;
    }
    bool isToolChecked(const QString& tool) const override { return toolChecked && tool == QLatin1String("tool"); }

    int getRecordState() const override { return 0; }
    bool isParamLocked() const override { return locked; }
    void setParamLock(bool lock) override { locked = lock; }
    unsigned int getFrameCount(int, int) const override { return 0; }
    int getFirstFrame(int, int) const override { return 0; }
    int getLastFrame(int, int) const override { return 0; }
    int getTriggerFrame(int) const override { return 0; }
    int getSelectStartFrame(int) const override { return 0; }
    int getSelectEndFrame(int) const override { return 0; }
    bool isPlaying() const override { return false; }
    bool isRecordCheck() const override { return false; }
    void setRecordCheck(bool) override {}
};
