#include "SaveOrders.h"

#include "Companions.h"
#include "FrameTexts.h"
#include "UiText.h"
#include "VideoTrials.h"

#include <QFileInfo>
#include <QPainter>

#include <utility>

namespace {

/// Of a frame's number.
constexpr int MostDigits = 20;

}  // namespace

void SaveOrders::add(SaveTrack track) {
    track.thin(skip);
    track.layout = layout;
    tracks.push_back(std::move(track));
}

QString SaveOrders::fileOf(const SaveTrack& track, int index) const {
    const qint64 number = track.number(index);
    const QString text = QString::number(qAbs(number)).rightJustified(frameDigits, QLatin1Char('0'));
    const QString ending = format.isOneFile() ? QString() : QString((number < 0 ? "_-" : "_") % text);
    return track.stem % ending % QLatin1Char('.') % format.suffix;
}

int SaveOrders::filesOf(const SaveTrack& track) const {
    return filesIn(track, format) + companionsOf(*this, track).size();
}

QImage SaveOrders::picture(const SaveTrack& track, int index, const QSet<int>& lost) const {
    QImage picture = track.picture(index, lost);
    const QStringList lines = drawn.texts(track, index, lost, QFileInfo(fileOf(track, index)).fileName(), date);
    if (!lines.isEmpty() && !picture.isNull()) {
        QPainter painter(&picture);
        FrameTexts(picture.rect(), track.tileSize().height()).drawPlates(painter, lines);
    }
    return picture;
}

QString formatFault(const QString& id) {
    if (QStringList{"raww", "mraw", "graw"}.contains(id)) {
        return uiText("How files of this format are laid out is known to no program here.");
    }
    return saveFormat(id).isVideo() ? VideoTrials::installed().formatFault(id) : QString();
}

SaveOrders chosenOrders(const PrefReader& pref, const QString& family) {
    SaveOrders orders;
    orders.format = chosenFormat(pref, family);
    const int digits = pref(family % QStringLiteral("filenameseqdigits")).toInt();
    orders.frameDigits = digits >= 1 && digits <= MostDigits ? digits : orders.frameDigits;
    orders.skip = FrameSkipRule::chosen(pref, family);
    orders.layout = LayoutRule::chosen(pref, family);
    orders.drawn = DrawnInformation::chosen(pref, family);
    if (pref(family % QStringLiteral("savethumbnail")).toBool()) {
        orders.thumbnail = pref(family % QStringLiteral("savethumbnailaddtextvalue")).toString();
    }
    // Of snapshots it is called otherwise.
    orders.hasInformation =
        pref(family % QStringLiteral("saveinf")).toBool() || pref(family % QStringLiteral("cihx")).toBool();
    orders.date = QDateTime::currentDateTime();
    return orders;
}
