#include "ToolIcons.h"

#include "Picture.h"

#include <QFont>
#include <QPolygonF>
#include <QStringList>

namespace {

constexpr int CellWidth = 40;
constexpr int CellHeight = 32;
constexpr qreal Scale = 1.15;

/// Strokes on a field of 16 x 16, separated by ';': points of a line, with 'f' before a filled shape, with 'o' before a
/// circle's middle and radius, with 't' before letters.
const QList<QStringList> Sheets = {
    {
        "1,1 1,15 15,15;3,13 6,12 9,7 12,3 15,2",                                             // adj-lut
        "o6,6,4;o10,6,4;o8,10,4",                                                             // adj-color
        "1,2 15,2 10,8 10,15 6,12 6,8 1,2",                                                   // adj-filter
        "tHDR",                                                                               // adj-hdr
        "1,1 15,1 15,15 1,15 1,1;8,1 8,15;1,8 15,8",                                          // adj-binning
        "1,4 15,4 15,12 1,12 1,4;4,4 4,8;8,4 8,9;12,4 12,8",                                  // dim-scale
        "o8,8,4.5;8,0 8,6;8,10 8,16;0,8 6,8;10,8 16,8",                                       // dim-manualtracking
        "1,1 1,15 15,15;1,5 3,5;1,10 3,10;6,15 6,13;11,15 11,13;f7,4 13,4 13,10 7,10",        // dim-calibration
        "f1,2 5,2 5,14 1,14;6,2 10,2 10,14 6,14 6,2;f11,2 15,2 15,14 11,14",                  // msr-pseudo
        "f1,9 4,9 4,15 1,15;f5,4 8,4 8,15 5,15;f9,1 12,1 12,15 9,15;f13,8 16,8 16,15 13,15",  // msr-histogram
        "1,15 15,15;1,12 4,11 6,3 8,9 10,5 12,11 15,12",                                      // msr-lineprofile
        "o8,6,5;6,13 10,13;6.5,15.5 9.5,15.5",                                                // msr-luminance
    },
    {
        "o8,8,3;8,0 8,2.5;8,13.5 8,16;0,8 2.5,8;13.5,8 16,8;2.5,2.5 4,4;12,12 13.5,13.5;13.5,2.5 12,4;4,12 2.5,13.5",
        "f1,1 6,1 6,6 1,6;f11,1 16,1 16,6 11,6;f6,6 11,6 11,11 6,11;f1,11 6,11 6,16 1,16;f11,11 16,11 16,16 11,16",
        "2,5 2,2 14,2 14,5;8,2 8,14;6,14 10,14",                                               // edt-addtext
        "1,2 15,2 15,14 1,14 1,2;1,12 5,7 8,10 11,6 15,11;o5,5,1",                             // edt-addpict
        "1,5 1,1 5,1;11,1 15,1 15,5;15,11 15,15 11,15;5,15 1,15 1,11",                         // edt-selectarea
        "o8,8,7;o8,8,3",                                                                       // eqp-lens
        "4,10 4,5 6,2 10,2 12,5 12,10;2,10 14,10;6,10 6,15;10,10 10,15",                       // eqp-led
        "o8,8,7;8,3.5 8,8 11.5,10",                                                            // eqp-timelapse
        "0,4 16,4 13.5,12 2.5,12 0,4;o4.5,7,.6;o8,7,.6;o11.5,7,.6;o6.2,9.8,.6;o9.8,9.8,.6",    // eqp-serial
        "4,1 12,1 12,15 4,15 4,1;7,12.5 9,12.5",                                               // add-mobile
        "2,9 2,6 5,3 11,3;8.5,0.5 11,3 8.5,5.5;14,7 14,10 11,13 5,13;7.5,10.5 5,13 7.5,15.5",  // ass-sync
        "1,2 15,2 15,14 1,14 1,2;9,4 6,8 10,8 7,12",                                           // eqp-swimgtgr
    },
    {
        "1,1 11,1 11,10 1,10 1,1;5,6 15,6 15,15 5,15 5,6",                            // ass-overimg
        "1,2 15,2 15,14 1,14 1,2;f8,8 13,8 13,12 8,12",                               // ass-pinto
        "8,1 15,14 1,14 8,1;8,6 8,9.5;8,11.8 8,12",                                   // ass-whitewrn
        "4,4 12,4 12,12 4,12 4,4;0,8 2,8;14,8 16,8;8,0 8,2;8,14 8,16",                // spl-stabilize
        "2,3 5,2 11,2 14,3 15,8 14,13 11,14 5,14 2,13 1,8 2,3;8,2 8,14;1,8 15,8",     // spl-distort
        "1,6 4,3 7,6 10,3 13,6 15,4;1,12 4,9 7,12 10,9 13,12 15,10",                  // spl-spanting
        "o8,5,3;3,15 3,12 6,9.5 10,9.5 13,12 13,15",                                  // spl-delback
        "o4.5,8,3.5;o11.5,8,3.5",                                                     // spl-cycleview
        "o6.5,6.5,5;10.5,10.5 15,15",                                                 // spl-motionsch
        "1,4 8,4;5.5,1.5 8,4 5.5,6.5;7,12 15,12;12.5,9.5 15,12 12.5,14.5;o3,12,1.5",  // add-pivcontrol
        "1,14 5,10;8,14 12,8;3,7 7,3;10,5 15,1;o5,10,.8;o12,8,.8;o7,3,.8",            // add-pivanalize
        "1,12 4,12 4,4 8,4 8,12 12,12 12,4 15,4",                                     // add-daq
    },
};

struct State {
    QColor plate;
    QColor line;
};

const QList<State> States = {
    {QColor(0x6b, 0x74, 0x7c), QColor(255, 255, 255)},
    {QColor(0x2a, 0x7f, 0xc0), QColor(255, 255, 255)},
    {QColor(0x80, 0x88, 0x90, 140), QColor(255, 255, 255, 190)},
    {QColor(0x2a, 0x7f, 0xc0, 150), QColor(255, 255, 255, 220)},
};

QList<qreal> numbers(const QString& text) {
    QList<qreal> list;
    for (const QString& number : text.split(',')) {
        list.append(number.toDouble());
    }
    return list;
}

QPolygonF points(const QString& text) {
    QPolygonF list;
    for (const QString& point : text.split(' ')) {
        const QList<qreal> at = numbers(point);
        list.append(QPointF(at.at(0), at.at(1)));
    }
    return list;
}

void letters(QPainter& painter, const QString& text) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(8);
    painter.setFont(font);
    painter.drawText(QRectF(-4, 0, 24, 16), Qt::AlignCenter, text);
}

void stroke(Picture& picture, const QString& text, const QColor& colour) {
    picture.pen(colour, 1.3);
    const QString rest = text.mid(1);
    switch (text.at(0).toLatin1()) {
        case 'o': {
            const QList<qreal> circle = numbers(rest);
            picture.painter().drawEllipse(QPointF(circle.at(0), circle.at(1)), circle.at(2), circle.at(2));
            break;
        }
        case 'f':
            picture.fill(colour);
            picture.painter().drawPolygon(points(rest));
            break;
        case 't':
            letters(picture.painter(), rest);
            break;
        default:
            picture.painter().drawPolyline(points(text));
    }
}

void icon(Picture& picture, const QString& strokes, const State& state) {
    picture.fill(state.plate);
    picture.roundedBox(QRectF(4, 3, CellWidth - 8, CellHeight - 6), 3);
    picture.painter().translate((CellWidth - 16 * Scale) / 2, (CellHeight - 16 * Scale) / 2);
    picture.painter().scale(Scale, Scale);
    for (const QString& text : strokes.split(';')) {
        stroke(picture, text, state.line);
    }
}

}  // namespace

void drawToolIcons(const QDir& folder) {
    for (int sheet = 0; sheet < Sheets.size(); ++sheet) {
        const QStringList& icons = Sheets.at(sheet);
        Picture picture(CellWidth * icons.size(), CellHeight * States.size());
        for (int row = 0; row < States.size(); ++row) {
            for (int column = 0; column < icons.size(); ++column) {
                picture.painter().resetTransform();
                picture.painter().translate(column * CellWidth, row * CellHeight);
                icon(picture, icons.at(column), States.at(row));
            }
        }
        picture.save(folder.filePath(QStringLiteral("is_toolmenu_sub%1.png").arg(sheet + 1)));
    }
}
