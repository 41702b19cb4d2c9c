#include "FileMetadata.h"
#include "ZebTypes.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

QJsonObject read(const FileMetadata& metadata) {
    EXPECT_LE(metadata.description.size(), FileMetadata::MostBytes);
    return QJsonDocument::fromJson(metadata.description).object();
}

FrameMetadata frameOf(int items, const QString& text) {
    FrameMetadata frame{text, 1000, 2000, {-512, -512000}, {}, {}};
    for (int i = 0; i < items; ++i) {
        EXPECT_EQ(frame.info.put({QString::number(i) % text, text, text, true, false}), "");
    }
    return frame;
}

TEST(FileMetadata, CountsWhatThereIsNoRoomFor) {
    for (const int letters : {1, 80, 81, 82, 256, 20000}) {
        const FrameMetadata frame = frameOf(zeb::MostCustomItems, QString(letters, QChar(0x5727)));
        const FileMetadata metadata = FileMetadata::of(frame);
        const QJsonObject camera = read(metadata);
        const int items = camera["items"].toArray().size();
        EXPECT_EQ(items + camera["itemsLeftOut"].toInt(), zeb::MostCustomItems) << letters;
        EXPECT_EQ(items > 0, letters < 20000);
        EXPECT_EQ(camera["time"].toDouble(), -0.512);
        QHash<QString, QString> tags;
        for (const auto& [name, value] : metadata.tags) {
            tags[name] = value;
        }
        EXPECT_EQ(tags["items"].split('\n', Qt::SkipEmptyParts), frame.info.shownTexts().mid(0, items)) << letters;
        EXPECT_EQ(tags["itemsLeftOut"].toInt(), camera["itemsLeftOut"].toInt());
    }
    for (const int cameras : {1, 64, 1024}) {
        QList<FrameMetadata> all;
        for (int i = 0; i < cameras; ++i) {
            all.append(frameOf(zeb::MostCustomItems, "Gate"));
        }
        const QJsonObject layout = read(FileMetadata::ofLayout(all));
        EXPECT_EQ(layout["cameras"].toArray().size() + layout["camerasLeftOut"].toInt(), cameras);
        EXPECT_EQ(layout["cameras"].toArray().last()["items"].toArray().size() == zeb::MostCustomItems, cameras == 1);
    }
}

}  // namespace
