#include "FramePicture.h"

#include "FileError.h"
#include "FrameTexts.h"
#include "RecordedPictures.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr QColor Ground(24, 26, 30);
constexpr int Spokes = 5;
/// Of a live image: so many frames make one turn.
constexpr int FramesInTurn = 2400;

/// A number of the camera's own, the same at every start of the program.
unsigned int numberOf(const QString& camera) {
    unsigned int sum = 7;
    for (const QChar letter : camera) {
        sum = sum * 31 + letter.unicode();
    }
    return sum;
}

void drawGround(QPainter& painter, const QColor& colour, const QSize& size) {
    QLinearGradient gradient(0, 0, 0, size.height());
    gradient.setColorAt(0, colour.lighter(150));
    gradient.setColorAt(1, colour.darker(190));
    painter.fillRect(QRect({}, size), gradient);
}

/// Both the wheel and the mark that runs along the lower edge tell how far the frames have come.
void drawMotion(QPainter& painter, const QColor& colour, const QSize& size, qint64 number) {
    const qint64 inTurn = ((number % FramesInTurn) + FramesInTurn) % FramesInTurn;
    const double part = double(inTurn) / FramesInTurn;
    const double radius = std::min(size.width(), size.height()) * 0.32;
    const QPointF middle(size.width() * 0.5, size.height() * 0.5);
    painter.setPen(QPen(colour.lighter(260), std::max(1.0, radius * 0.06)));
    painter.setBrush(colour.lighter(120));
    painter.drawEllipse(middle, radius, radius);
    for (int spoke = 0; spoke < Spokes; ++spoke) {
        const double angle = 2 * M_PI * (part + double(spoke) / Spokes);
        painter.drawLine(middle, middle + QPointF(std::sin(angle), -std::cos(angle)) * radius);
    }
    const double angle = 2 * M_PI * part;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 214, 90));
    painter.drawEllipse(middle + QPointF(std::sin(angle), -std::cos(angle)) * radius, radius * 0.14, radius * 0.14);
    painter.drawRect(QRectF(part * size.width() * 0.96, size.height() * 0.985, size.width() * 0.04, size.height()));
}

QString timeText(qint64 microseconds) {
    return QString::number(double(microseconds) / 1e6, 'f', 6) % QStringLiteral(" s");
}

void drawTexts(QPainter& painter, const CameraFrame& frame, const QSize& size) {
    const FrameTexts texts(QRect({}, size));
    texts.draw(painter, Qt::AlignLeft | Qt::AlignTop, frame.camera);
    const QString number = QStringLiteral("# %1").arg(frame.number);
    texts.draw(painter, Qt::AlignLeft | Qt::AlignBottom, number);
    const int left = texts.widthOf(number) + 2 * texts.margin();
    const QString time = timeText(frame.time);
    // Half a number would be a wrong one.
    if (texts.widthOf(time) <= texts.place().width() - left) {
        texts.draw(painter, Qt::AlignRight | Qt::AlignBottom, time);
    }
}

QImage drawScene(const CameraFrame& frame, const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull()) {
        return picture;
    }
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = QColor::fromHsv(int(numberOf(frame.camera) % 360), 90, 96);
    drawGround(painter, colour, size);
    drawMotion(painter, colour, size, frame.number);
    if (frame.hasTexts) {
        drawTexts(painter, frame, size);
    }
    return picture;
}

QImage storedPicture(const CameraFrame& frame, const QSize& size) {
    const QImage picture = frame.pictures->picture(frame.memoryFrame);
    if (picture.size() == size && frame.effects.isEmpty()) {
        return picture;
    }
    const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
    return plain.size() == size ? plain : plain.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

QImage drawFrame(const CameraFrame& frame, const QSize& size) {
    const QSize drawn = seesNeighbours(frame.effects) ? frame.resolution : size;
    QImage picture = frame.pictures ? storedPicture(frame, drawn) : drawScene(frame, drawn);
    if (picture.isNull()) {
        return picture;
    }
    if (!frame.pictures) {
        frame.noise.addTo(picture, frame.resolution, frame.number);
    }
    for (const auto& effect : frame.effects) {
        effect.first->apply(picture, effect.second);
    }
    return picture.size() == size ? picture : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage drawFrameOrFailure(const CameraFrame& frame, const QSize& size) {
    try {
        return drawFrame(frame, size);
    } catch (const FileError& e) {
        QImage ground(size, QImage::Format_RGB32);
        ground.fill(Ground);
        if (!ground.isNull()) {
            QPainter painter(&ground);
            FrameTexts(ground.rect()).drawWrapped(painter, unreadableText(e));
        }
        return ground;
    }
}

QSize fitInto(const QSize& bounds, const QSize& resolution) {
    return bounds.isEmpty() || resolution.isEmpty() ? QSize() : resolution.scaled(bounds, Qt::KeepAspectRatio);
}
