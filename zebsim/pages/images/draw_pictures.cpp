// Draws the pictures that the pages' style sheets name: `draw_pictures FOLDER`.

#include "Picture.h"
#include "ToolIcons.h"

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QPainterPath>

#include <cstdio>
#include <exception>

namespace {

/// What differs between the light and the dark style.
struct Style {
    QString suffix;
    QColor line;
    QColor faint;
    QColor paper;
    QColor on;
};

const QColor kGreen(0x1f, 0xa3, 0x4a);
const QColor kWhite(Qt::white);

// A word on a coloured plate, as large as the plate allows.
void badge(const QDir& folder, const QString& name, const QString& text, const QColor& colour) {
    Picture picture(96, 24);
    picture.fill(colour);
    picture.roundedBox(QRectF(1, 2, 94, 20), 4);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(13);
    font.setStretch(QFontMetrics(font).horizontalAdvance(text) > 86 ? QFont::SemiCondensed - 4 : QFont::Unstretched);
    picture.painter().setFont(font);
    picture.painter().setPen(kWhite);
    picture.painter().drawText(QRectF(1, 2, 94, 20), Qt::AlignCenter, text);
    picture.save(folder.filePath(name + QStringLiteral("_96x24.png")));
}

void badges(const QDir& folder) {
    badge(folder, QStringLiteral("cam_stat_live"), QStringLiteral("LIVE"), QColor(0x2b, 0x7b, 0xb9));
    badge(folder, QStringLiteral("cam_stat_ready"), QStringLiteral("Ready"), kGreen);
    badge(folder, QStringLiteral("cam_stat_recording"), QStringLiteral("Recording"), QColor(0xd0, 0x2f, 0x26));
    badge(folder, QStringLiteral("sync_stat_no_sync"), QStringLiteral("No Sync"), QColor(0x7d, 0x85, 0x8d));
    badge(folder, QStringLiteral("sync_stat_over_sync"), QStringLiteral("Over Sync"), QColor(0xc7, 0x6a, 0x00));
    badge(folder, QStringLiteral("sync_stat_sync_in"), QStringLiteral("Sync In"), kGreen);
    badge(folder, QStringLiteral("sync_stat_not_supported"), QStringLiteral("No support"), QColor(0x9a, 0x9f, 0xa4));
}

void camera(Picture& picture, qreal x, const QColor& colour) {
    picture.fill(colour);
    picture.roundedBox(QRectF(x + 2, 7, 13, 11), 2);
    QPainterPath lens;
    lens.moveTo(x + 16, 11);
    lens.lineTo(x + 22, 7.5);
    lens.lineTo(x + 22, 17.5);
    lens.lineTo(x + 16, 14);
    lens.closeSubpath();
    picture.painter().drawPath(lens);
}

void mobile(Picture& picture, qreal x, const QColor& colour, const QColor& screen) {
    picture.fill(colour);
    picture.roundedBox(QRectF(x + 6, 2, 12, 20), 2);
    picture.fill(screen);
    picture.painter().drawRect(QRectF(x + 8, 5, 8, 12));
}

// Connected, disconnected, mobile; 24 pixels each. Below, in the first column, the camera of a list of files.
void titleBar(const QDir& folder, const Style& style) {
    constexpr int OfList = 306;
    Picture picture(72, OfList + 24);
    picture.painter().translate(0, OfList);
    camera(picture, 0, style.on);
    picture.painter().translate(0, -OfList);
    camera(picture, 0, style.on);
    camera(picture, 24, style.faint);
    picture.pen(style.line, 1.6);
    picture.painter().drawLine(QPointF(28, 20), QPointF(45, 4));
    mobile(picture, 48, style.line, style.paper);
    picture.save(folder.filePath(QStringLiteral("is_titlebar%1.png").arg(style.suffix)));
}

void pen(Picture& picture, qreal x, const QColor& colour) {
    picture.pen(colour, 1.4);
    QPainterPath shaft;
    shaft.moveTo(x + 3, 13);
    shaft.lineTo(x + 4, 9.6);
    shaft.lineTo(x + 10.6, 3);
    shaft.lineTo(x + 13, 5.4);
    shaft.lineTo(x + 6.4, 12);
    shaft.closeSubpath();
    picture.painter().drawPath(shaft);
    picture.painter().drawLine(QPointF(x + 9, 4.8), QPointF(x + 11.2, 7));
}

void disk(Picture& picture, const Style& style) {
    picture.fill(style.line);
    picture.roundedBox(QRectF(49.5, 1.5, 13, 13), 1.5);
    picture.fill(style.paper);
    picture.painter().drawRect(QRectF(52, 1.5, 7.5, 4.5));
    picture.painter().drawRect(QRectF(52, 9, 8, 5));
}

void bin(Picture& picture, qreal y, const QColor& colour) {
    picture.pen(colour, 1.4);
    QPainterPath path;
    path.addRoundedRect(QRectF(4, y + 5, 10, 11), 1.5, 1.5);
    path.moveTo(2.5, y + 5);
    path.lineTo(15.5, y + 5);
    path.moveTo(7, y + 4.6);
    path.lineTo(7, y + 2.5);
    path.lineTo(11, y + 2.5);
    path.lineTo(11, y + 4.6);
    for (const qreal x : {7.4, 10.6}) {
        path.moveTo(x, y + 8);
        path.lineTo(x, y + 13);
    }
    picture.painter().drawPath(path);
}

// Cells of 16 pixels: a pen, a pen that is disabled, none, a disk. Below, in the first column, a bin of 18 pixels.
void common(const QDir& folder, const Style& style) {
    constexpr int Bin = 811;
    Picture picture(64, Bin + 18);
    bin(picture, Bin, style.line);
    pen(picture, 0, style.line);
    pen(picture, 16, style.faint);
    disk(picture, style);
    picture.save(folder.filePath(QStringLiteral("is_common%1.png").arg(style.suffix)));
}

void toggle(const QDir& folder, const QString& name, const QColor& track, const QColor& knob, bool on) {
    Picture picture(32, 16);
    picture.fill(track);
    picture.roundedBox(QRectF(2, 1, 28, 14), 7);
    picture.fill(knob);
    picture.painter().drawEllipse(QPointF(on ? 23 : 9, 8), 5.2, 5.2);
    picture.save(folder.filePath(name + QStringLiteral("_32x16.png")));
}

void padlock(const QDir& folder, const QString& name, const QColor& colour, bool open) {
    Picture picture(32, 16);
    picture.pen(colour, 1.8);
    QPainterPath shackle;
    shackle.moveTo(12.8, 8);
    shackle.lineTo(12.8, 5.4);
    shackle.arcTo(QRectF(12.8, 2.2, 6.4, 6.4), 180, -180);
    shackle.lineTo(19.2, open ? 5.8 : 8);
    picture.painter().drawPath(shackle);
    picture.fill(colour);
    picture.roundedBox(QRectF(10.5, 7.5, 11, 7.5), 1.5);
    picture.save(folder.filePath(name + QStringLiteral("_32x16.png")));
}

void alert(const QDir& folder) {
    Picture picture(16, 16);
    picture.fill(kWhite);
    QPainterPath sign;
    sign.moveTo(8, 1.5);
    sign.lineTo(15, 14);
    sign.lineTo(1, 14);
    sign.closeSubpath();
    picture.painter().drawPath(sign);
    picture.pen(QColor(0xe0, 0x2b, 0x20), 1.8);
    picture.painter().drawLine(QPointF(8, 6.4), QPointF(8, 9.6));
    picture.painter().drawPoint(QPointF(8, 12));
    picture.save(folder.filePath(QStringLiteral("alert_16x16.png")));
}

void selectArrow(const QDir& folder, const Style& style) {
    Picture picture(9, 9);
    picture.pen(style.line, 1.5);
    picture.painter().drawPolyline(QPolygonF({QPointF(1.5, 3), QPointF(4.5, 6), QPointF(7.5, 3)}));
    picture.save(folder.filePath(QStringLiteral("bg_select%1.png").arg(style.suffix)));
}

// Seen on light and on dark paper.
void spinnerArrows(const QDir& folder) {
    Picture picture(9, 15);
    picture.pen(QColor(0x80, 0x88, 0x90), 1.5);
    picture.painter().drawPolyline(QPolygonF({QPointF(1.5, 5.5), QPointF(4.5, 2.5), QPointF(7.5, 5.5)}));
    picture.painter().drawPolyline(QPolygonF({QPointF(1.5, 9.5), QPointF(4.5, 12.5), QPointF(7.5, 9.5)}));
    picture.save(folder.filePath(QStringLiteral("bg_spinner.png")));
}

void drawAll(const QDir& folder) {
    const Style light{QString(), QColor(0x4a, 0x52, 0x5a), QColor(0xa7, 0xae, 0xb5), kWhite, kGreen};
    const Style dark{QStringLiteral("_dark"), QColor(0xd0, 0xd5, 0xda), QColor(0x77, 0x7e, 0x85),
                     QColor(0x2b, 0x2e, 0x31), QColor(0x3f, 0xd4, 0x73)};
    badges(folder);
    for (const Style& style : {light, dark}) {
        titleBar(folder, style);
        common(folder, style);
        selectArrow(folder, style);
    }
    toggle(folder, QStringLiteral("connect_green"), kGreen, kWhite, true);
    toggle(folder, QStringLiteral("connect_dark_green"), kGreen.darker(115), kWhite, true);
    toggle(folder, QStringLiteral("disconnect_light"), light.faint, kWhite, false);
    toggle(folder, QStringLiteral("disconnect_dark"), dark.faint, dark.line, false);
    padlock(folder, QStringLiteral("lock"), kWhite, false);
    padlock(folder, QStringLiteral("unlock_light"), light.faint, true);
    padlock(folder, QStringLiteral("unlock_dark"), dark.faint, true);
    alert(folder);
    spinnerArrows(folder);
    drawToolIcons(folder);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "Usage: draw_pictures FOLDER\n");
        return 2;
    }
    QGuiApplication app(argc, argv);
    try {
        drawAll(QDir(QString::fromLocal8Bit(argv[1])));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        return 1;
    }
    return 0;
}
