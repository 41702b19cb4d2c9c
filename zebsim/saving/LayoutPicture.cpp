#include "LayoutPicture.h"

#include "FramePicture.h"
#include "FrameTexts.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr QSize LargestTile{480, 360};
/// Of the whole, where nobody says how large it is.
constexpr int LargestSide = 3840;
constexpr QColor Ground(24, 26, 30);
constexpr int LeastSide = 16;
constexpr int MostSide = 16384;
constexpr int MostColumns = 1024;

int sideOf(const QVariant& value, int otherwise) {
    const int side = value.toInt();
    return side >= LeastSide && side <= MostSide ? side : otherwise;
}

bool isOn(const QVariant& value) {
    return !value.isValid() || value.toBool();
}

void drawTile(QPainter& painter, const LayoutRule& rule, const QRect& place, const LayoutTile& tile) {
    if (!tile.frame) {
        if (rule.hasTexts) {
            FrameTexts(place).draw(painter, Qt::AlignLeft | Qt::AlignTop, tile.name);
        }
        return;
    }
    const QSize fitting = rule.keepsAspect ? fitInto(place.size(), tile.frame->resolution) : place.size();
    const QPoint border((place.width() - fitting.width()) / 2, (place.height() - fitting.height()) / 2);
    CameraFrame frame = *tile.frame;
    frame.hasTexts = rule.hasTexts;
    painter.drawImage(place.topLeft() + border, drawFrame(frame, fitting));
}

}  // namespace

QSize LayoutRule::grid(int tiles) const {
    const int square = columns > 0 ? std::min(columns, tiles) : int(std::ceil(std::sqrt(double(tiles))));
    const int across = method == Row ? tiles : method == Column ? 1 : square;
    return {across, (tiles + across - 1) / across};
}

QSize LayoutRule::tileSize(int tiles) const {
    const QSize places = grid(tiles);
    const QSize room = size.isEmpty() ? QSize(LargestSide, LargestSide) : size;
    const QSize share(std::max(1, room.width() / places.width()), std::max(1, room.height() / places.height()));
    return size.isEmpty() ? fitInto(share.boundedTo(LargestTile), LargestTile).expandedTo({1, 1}) : share;
}

QSize LayoutRule::wholeSize(int tiles) const {
    const QSize places = grid(tiles);
    const QSize tile = tileSize(tiles);
    return size.isEmpty() ? QSize(tile.width() * places.width(), tile.height() * places.height()) : size;
}

LayoutRule LayoutRule::chosen(const PrefReader& pref, const QString& family) {
    LayoutRule rule;
    const auto option = [&](const char* suffix) { return pref(family % QLatin1String(suffix)); };
    const QString method = option("combinedmethod").toString();
    rule.method = method == QLatin1String("row") ? Row : method == QLatin1String("column") ? Column : Grid;
    const int columns = option("count").toInt();
    rule.columns = columns >= 0 && columns <= MostColumns ? columns : 0;
    rule.keepsAspect = isOn(option("combinedmethodaspect"));
    if (option("combinedresolutionspecify").toBool()) {
        rule.size = {sideOf(option("combinedresolutionspecifywidth"), 1920),
                     sideOf(option("combinedresolutionspecifyheight"), 1080)};
    }
    rule.hasTexts = isOn(option("info"));
    rule.holdsEnds = option("mode").toString() != QLatin1String("blank");
    return rule;
}

QImage layoutPicture(const LayoutRule& rule, const std::vector<std::optional<LayoutTile>>& tiles) {
    const int count = int(tiles.size());
    QImage picture(rule.wholeSize(count), QImage::Format_RGB32);
    if (picture.isNull()) {
        return picture;
    }
    picture.fill(Ground);
    QPainter painter(&picture);
    const QSize tile = rule.tileSize(count);
    const int columns = rule.grid(count).width();
    for (int i = 0; i < count; ++i) {
        if (tiles[std::size_t(i)]) {
            const QPoint corner(tile.width() * (i % columns), tile.height() * (i / columns));
            drawTile(painter, rule, {corner, tile}, *tiles[std::size_t(i)]);
        }
    }
    return picture;
}
