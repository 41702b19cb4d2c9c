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
                const char* pixel = read.constData() + std::ptrdiff_t(6) * level;
                EXPECT_EQ(qFromLittleEndian<quint16>(pixel), one.stored(level)) << id << one.bits;
                EXPECT_EQ(qFromLittleEndian<quint16>(pixel + 2), one.stored(255 - level));
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

TEST_F(SavingTest, DrawsWhatThePreferencesTellOfAFrame) {
    host.camera(3).change({{"recordedShutter", 8000}, {"comment", "wind\ttunnel{Separator}run 2"}});
    const struct {
        const char *first, *seventh, *texts, *ofLayout;
    } cases[] = {
        {"", "", "", ""},
        {"File name:1,Camera name:1", "", "Nozzle_2_00001.bmp   Nozzle/2", "Layout_00002.bmp   Gate, Nozzle/2"},
        {"Frame number:1,Time:1", "Resolution:0", "# 1   0.001000 s", "# 2   0.001000 s"},
        {"Record rate:1,Shutter speed:1,Resolution:1", "", "1000 fps   1/8000 s   63 x 47",
         "1000 fps   1/%1 s, 1/8000 s   63 x 47"},
        {"File name:0,Colour:1,,:1,Time", "Comment:1, Date: 1", "wind\\u0009tunnel run 2   2024-01-02 03:04:05",
         "wind\\u0009tunnel run 2   2024-01-02 03:04:05"},
        {"Time:1", "Camera name:1", "0.001000 s|Nozzle/2", "0.001000 s|Gate, Nozzle/2"},
    };
    for (const auto& one : cases) {
        for (const bool isOn : {true, false}) {
            QHash<QString, QVariant> prefs{{"format", "bmp"}, {"saveinfo", isOn}};
            prefs["saveinfo/display0"] = one.first;
            prefs["saveinfo/display6"] = one.seventh;
            SaveOrders wanted = chosen(prefs);
            wanted.date = {{2024, 1, 2}, {3, 4, 5}};
            wanted.tracks = {orders().tracks[1], tracksOfLayout(sources(), "Layout").front()};
            wanted.tracks[1].stem = path("Layout");
            const auto texts = [&](int track, int index) {
                const SaveTrack& saved = wanted.tracks[std::size_t(track)];
                const QString file = QFileInfo(wanted.fileOf(saved, index)).fileName();
                return wanted.drawn.texts(saved, index, {}, file, wanted.date).join('|').toStdString();
            };
            EXPECT_EQ(texts(0, 1), isOn ? one.texts : "");
            const int shutter = sources()[0].recording().shutter;
            EXPECT_EQ(texts(1, 2),
                      isOn ? QString(one.ofLayout).replace("%1", QString::number(shutter)).toStdString() : "");
        }
    }
}

TEST_F(SavingTest, DrawsInformationAboveTheTextsOfAFrame) {
    host.camera(3).change({{"resolution", QVariantList{400, 300}}, {"comment", "x"}});
    for (const bool isLayout : {false, true}) {
        SaveOrders wanted = chosen({{"saveinfo", true}, {"saveinfo/display2", "Comment:1"}});
        wanted.tracks = isLayout ? tracksOfLayout(sources(), "Layout") : tracksOfEach(sources());
        wanted.tracks = {wanted.tracks.back()};
        wanted.tracks.back().stem = path(isLayout ? "layout" : "one");
        EXPECT_TRUE(run(wanted).first().endsWith("saved"));
        const SaveTrack& track = wanted.tracks.back();
        const QImage plain = track.picture(0);
        const QImage saved = QImage(wanted.fileOf(track, 0)).convertToFormat(QImage::Format_RGB32);
        QRect changed;
        for (int i = 0; i < plain.width() * plain.height(); ++i) {
            const QPoint at(i % plain.width(), i / plain.width());
            changed |= plain.pixel(at) == saved.pixel(at) ? QRect() : QRect(at, QSize(1, 1));
        }
        const int height = isLayout ? 360 : 300;
        EXPECT_LT(changed.bottom(), plain.height() - height / 14) << "the frame's own texts stay";
        EXPECT_GT(changed.top(), plain.height() - height / 4);
        EXPECT_LT(changed.width(), height / 8) << "once, and no larger than its text";
        EXPECT_GT(changed.width() * changed.height(), 100);
    }
}

}  // namespace
