#pragma once

#include "CameraFrame.h"
#include "DOC_Image.h"
#include "DocTopic.h"
#include "SimDocManager.h"

/// The image of a document and what is written to it.
class SimImage : public DocTopic<DOC_Image> {
public:
    using DocTopic::DocTopic;

    QString getComment() const override { return ask(OPERATION("getComment"), &CameraState::comment); }
    void setComment(const QString& comment) override { note("DOC_Image::setComment", {comment}).setComment(comment); }
    std::optional<zeb::ImageFormat> getImageFormat(int kind, int head) const override;
    QSize getImageSize() const override { return ask(OPERATION("getImageSize"), &CameraState::resolution); }
    /// A recording also in live mode, if there is one.
    QPixmap getPreview(int type, int width, int height, PARTITIONNUMBER partition, int frame,
                       const QDateTime& time) const override;
    double getScale() const override { return ask(OPERATION("getScale"), &CameraState::scale); }
    int getBinningPower() const override { return ask(OPERATION("getBinningPower"), &CameraState::binningPower); }
    QPoint getPoint() const override { return ask(OPERATION("getPoint"), &CameraState::point); }
    QRect getToolRect(const QString& tool) const override {
        return m_host.docs.tools().rect(tool, ask(OPERATION("getToolRect")).key());
    }
    void setToolRect(const QString& tool, const QRect& rect) override;
    bool isToolChecked(const QString& tool) const override {
        return m_host.docs.tools().isChosen(tool, ask(OPERATION("isToolChecked")).key());
    }

private:
    QImage asSaved(int type, PARTITIONNUMBER partition, int frame, const QDateTime& time) const;
    CameraFrame previewed(PARTITIONNUMBER partition, int frame) const;
};
