#pragma once

#include "ZebTypes.h"

#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

class QDateTime;

/// The image of a document and what is written to it. GUI thread.
class DOC_Image {
public:
    virtual ~DOC_Image() = default;

    /// The user's comment, its lines separated by `zeb::CommentSeparator`.
    virtual QString getComment() const = 0;
    virtual void setComment(const QString& comment) = 0;

    /// How a pixel is kept; nothing when the document has no image.
    virtual std::optional<zeb::ImageFormat> getImageFormat(int kind, int head) const = 0;
    /// Image size in pixels.
    virtual QSize getImageSize() const = 0;
    /// A picture of what is recorded in `partition`, or seen live, as a file of that `zeb::FileType` would show it; of
    /// at most `width` by `height` pixels. `frame` 0 is the one that is shown now. A null picture when there is none.
    virtual QPixmap getPreview(int type, int width, int height, PARTITIONNUMBER partition, int frame,
                               const QDateTime& time) const = 0;
    /// Factor by which the image was scaled; 0 when it was not.
    virtual double getScale() const = 0;
    /// Exponent of the binning, as a power of 2.
    virtual int getBinningPower() const = 0;
    /// Last point that the user marked on the image, in image pixels.
    virtual QPoint getPoint() const = 0;

    /// The rectangle that the tool `tool` edits; null rectangle when there is none.
    virtual QRect getToolRect(const QString& tool) const = 0;
    virtual void setToolRect(const QString& tool, const QRect& rect) = 0;
    /// Whether the tool's button is to stand pressed for this document.
    virtual bool isToolChecked(const QString& tool) const = 0;
};
