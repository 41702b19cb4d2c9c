#pragma once

#include "DOC_Image.h"

class Camera;
struct DocContext;

/// The image of a document and what is written to it.
class SimImage : public DOC_Image {
public:
    SimImage(Camera& camera, const DocContext& context) : m_camera(camera), m_context(context) {}

    QString getComment() const override;
    void setComment(const QString& comment) override;
    std::optional<zeb::ImageFormat> getImageFormat(int kind, int head) const override;
    QSize getImageSize() const override;
    double getScale() const override;
    int getBinningPower() const override;
    QPoint getPoint() const override;
    QRect getToolRect(const QString& tool) const override;
    void setToolRect(const QString& tool, const QRect& rect) override;
    bool isToolChecked(const QString& tool) const override;

private:
    Camera& m_camera;
    const DocContext& m_context;
};
