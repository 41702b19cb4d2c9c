#include "Files.h"
#include "support/SavingTest.h"

#include <QtEndian>

namespace {

TEST(SaveOptions, AreTakenAsTheyStandOrAsNobodyHasChosenThem) {
    const QString factory = "png 8 upper speed lzw single 95, 5 digits, 1 in 1, 1 in 2000";
    const struct {
        QHash<QString, QVariant> prefs;
        const char* differs;
        const char* instead;
    } cases[] = {
        {{}, "", ""},
        {{{"format", "x"}, {"png/depth", 9}, {"png/priority", "x"}, {"filenameseqdigits", -1}}, "", ""},
        {{{"png/depth", "16"}, {"tiff/lower", true}}, "8 upper", "16 upper"},
        {{{"png/lower", true}, {"png/priority", "size"}}, "upper speed", "lower size"},
        {{{"format", "tiff"}, {"tiff/packbits", true}, {"tiff/multipage", true}, {"png/depth", 16}},
         "png 8 upper speed lzw single",
         "tiff 8 upper speed packbits pages"},
        {{{"format", "jpeg"}, {"jpeg/compressquality", 0}},
         "png 8 upper speed lzw single 95",
         "jpeg 8 upper speed lzw single 0"},
        {{{"format", "jpeg"}, {"jpeg/compressquality", 101}}, "png", "jpeg"},
        {{{"format", "jpeg"}, {"jpeg/compressquality", "best"}}, "png", "jpeg"},
        {{{"filenameseqdigits", 20}}, "5 digits", "20 digits"},
        {{{"filenameseqdigits", 21}}, "", ""},
        {{{"skipsaveframe", 4}}, "", ""},
        {{{"skipsave", true}, {"skipsaveframe", 4}}, "1 in 1, 1 in 2000", "1 in 4, 1 in 4"},
        {{{"skipsave", true}, {"skipsaveframe", 4}, {"skipsavemsec", 0.7}}, "1 in 1, 1 in 2000", "1 in 4, 1 in 4"},
        {{{"skipsave", true}, {"skipsaveframe", -4}}, "1 in 2000", "1 in 1"},
        {{{"skipsave", true}, {"skipsaveframe", 4}, {"skipunit", 1}}, "1 in 1, 1 in 2000", "1 in 4, 1 in 4"},
        {{{"skipsave", true}, {"skipsavemsec", 1000}, {"skipunit", 1}}, "1 in 1,", "1 in 1000,"},
        {{{"skipsave", true}, {"skipsavemsec", 1.4999}, {"skipunit", 1}}, "1 in 2000", "1 in 3"},
        {{{"skipsave", true}, {"skipsavemsec", 0.00005}, {"skipunit", 1}}, "1 in 2000", "1 in 1"},
        {{{"skipsave", true}, {"skipsavemsec", 1e300}, {"skipunit", 1}}, "1 in 2000", "1 in 1"},
    };
    for (const auto& one : cases) {
        const SaveOrders orders = chosen(one.prefs);
        const PictureOptions& options = orders.format.options;
        const bool isThinned = one.prefs.value("skipsave").toBool();
        const QString told = QString("%1 %2 %3 %4 %5 %6 %7, %8 digits, 1 in %9")
                                 .arg(orders.format.id)
                                 .arg(options.depth)
                                 .arg(options.isLower ? "lower" : "upper", options.isSmall ? "size" : "speed",
                                      options.isPackBits ? "packbits" : "lzw", options.isMultiPage ? "pages" : "single")
                                 .arg(options.jpegQuality)
                                 .arg(orders.frameDigits)
                                 .arg(orders.skip.stepAt(1000)) %
                             QString(", 1 in %1").arg(isThinned ? orders.skip.stepAt(2000) : 2000);
        EXPECT_EQ(told.toStdString(), QString(factory).replace(one.differs, one.instead).toStdString());
    }
}

TEST_F(SavingTest, PutsTheBitsOfACameraWhereTheyBelong) {
    // What lies below it keeps the file from being taken for a broken one.
    QImage ramp = orders().tracks[0].picture(0).scaled(256, 64);
    for (int level = 0; level < 256; ++level) {
        ramp.setPixel(level, 0, qRgb(level, 255 - level, 0));
    }
    const struct {
        int bits;
        bool isLower;
        int (*stored)(int level);
    } cases[] = {
        {8, false, [](int level) { return level << 8 | level; }},
        {8, true, [](int level) { return level; }},
        {10, true, [](int level) { return level << 2 | level >> 6; }},
        {12, false, [](int level) { return level << 8 | (level & 0xf0); }},
        {12, true, [](int level) { return level << 4 | level >> 4; }},
        {16, true, [](int level) { return level << 8 | level; }},
    };
    for (const char* id : {"png", "tiff"}) {
        for (const auto& one : cases) {
            SaveFormat format = saveFormat(id);
            format.options.depth = 16;
            format.options.isLower = one.isLower;
            write(path(QString("ramp.") + id), format.encoded(ramp, {}, one.bits));
            const QByteArray read = readByOthers(path(QString("ramp.") + id), 16);
            ASSERT_EQ(read.size(), 256 * 64 * 6);
            for (int level = 0; level < 256; ++level) {
                EXPECT_EQ(qFromLittleEndian<quint16>(read.constData() + 6 * level), one.stored(level))
                    << id << one.bits;
                EXPECT_EQ(qFromLittleEndian<quint16>(read.constData() + 6 * level + 2), one.stored(255 - level));
            }
        }
    }
}

TEST_F(SavingTest, WritesFilesAsTheirOptionsSay) {
    QImage picture = orders().tracks[0].picture(0).scaled(512, 512);
    SensorNoise{8, 0, 1}.addTo(picture, picture.size(), 1);
    const auto told = [&](const QHash<QString, QVariant>& prefs, const char* what) {
        write(path("picture"), chosen(prefs).format.encoded(picture, {}));
        return QString(outputOf("identify", {"-format", what, path("picture")}));
    };
    EXPECT_EQ(told({{"format", "tiff"}}, "%C %z"), "LZW 8");
    EXPECT_EQ(told({{"format", "tiff"}, {"tiff/packbits", true}, {"tiff/depth", 16}}, "%C %z"), "RLE 16");
    EXPECT_EQ(told({{"format", "jpeg"}, {"jpeg/compressquality", 31}}, "%Q"), "31");
    const int quick = told({}, "%B").toInt();
    const int small = told({{"png/priority", "size"}}, "%B").toInt();
    EXPECT_TRUE(small > 0 && small < quick * 95 / 100) << small << " of " << quick;
}

TEST_F(SavingTest, LeavesOutFramesAsEachRateWantsIt) {
    const struct {
        const char* what;
        FrameSkipRule skip;
        QList<int> steps;
    } cases[] = {{"every second", {2, 0}, {2, 2, 2}},
                 {"every 1.5 ms", {1, 15'000}, {2, 3, 5}},
                 {"every hour", {1, 36'000'000'000}, {3'600'000, 7'200'000, 10'800'000}},
                 {"every third of a millisecond", {1, 3'333}, {1, 1, 1}}};
    host.host.setRig(standardRig(3));
    for (DOCKEY key = 1; key <= 3; ++key) {
        prepare(key, QString::number(key), 97, 103);
        host.camera(key).change({{"recordedRate", 1000 * key}});
    }
    for (const auto& one : cases) {
        SaveOrders wanted{saveFormat("bmp"), {}};
        wanted.skip = one.skip;
        QStringList names;
        for (SaveTrack& track : tracksOfEach(sources())) {
            const int step = one.steps.at(int(track.sources[0].key()) - 1);
            for (int number = -3; number <= 3; number += step) {
                names << track.name % (number < 0 ? "_-" : "_") % QString::number(qAbs(number)).rightJustified(5, '0') %
                             ".bmp";
            }
            track.stem = path(track.name);
            wanted.add(track);
        }
        names.sort();
        const QStringList told = run(wanted);
        EXPECT_EQ(told.filter("saved").size(), 3) << told.join('|').toStdString();
        EXPECT_EQ(files(), names) << one.what;
        for (const SaveTrack& track : wanted.tracks) {
            const int last = track.frames() - 1;
            const qint64 number = track.number(last);
            EXPECT_EQ(track.indexOf(number), last);
            const DOCKEY key = track.sources[0].key();
            const CameraFrame frame{track.name, Size, number, number * 1000 / key, SensorNoise::of(host.camera(key)),
                                    {}};
            EXPECT_EQ(QImage(wanted.fileOf(track, last)).convertToFormat(QImage::Format_RGB32), drawFrame(frame, Size));
            EXPECT_TRUE(track.metadataOfAll().tags.contains({"lastFrame", QString::number(number)}));
            EXPECT_EQ(host.camera(key).recording()->saved, track.step == 1) << "frames are missing";
        }
        removeFiles();
    }
}

}  // namespace
