#include "FileRecording.h"
#include "Files.h"
#include "JsonError.h"
#include "RecordedPictures.h"
#include "TargetDisk.h"
#include "support/SavingTest.h"

#include <QRandomGenerator>
#include <QtEndian>

namespace {

/// What is saved of the first camera is opened again.
class SavingReading : public SavingTest {
protected:
    void useBits(int bits) {
        Rig rig = standardRig(1);
        auto model = std::make_shared<CameraModel>(*rig.devices[0].model);
        model->bitDepth = bits;
        rig.devices[0].model = model;
        host.host.setRig(rig);
        prepare(1, "Gate", 99, 102);
    }
    SaveOrders ordersOf(const QString& format, int depth = 8, bool isLower = false, bool isMultiPage = false) {
        SaveOrders all = orders(format);
        all.tracks.resize(1);
        all.format.options.depth = depth;
        all.format.options.isLower = isLower;
        all.format.options.isMultiPage = isMultiPage;
        all.hasInformation = true;
        return all;
    }
    void save(const SaveOrders& all) {
        host.host.cameras().listFiles(false);
        EXPECT_EQ(run(all).filter("saved").size(), 1);
    }
    /// Answers its key.
    DOCKEY open(const QString& name = "Gate.cih") {
        const FileRecording recording = FileRecording::open(path(name), disk);
        missing = recording.missing;
        host.host.cameras().listFiles(true);
        const DOCKEY key = host.host.cameras().addFile(recording.device);
        added.append(key);
        return key;
    }
    void close() { host.host.cameras().removeFiles(added); }
    /// Of what is open, under another name.
    SaveOrders conversion(const QString& format, int depth, bool isLower) {
        SaveOrders all = ordersOf(format, depth, isLower);
        all.tracks[0].stem = path("c");
        all.hasInformation = false;
        return all;
    }
    Recording recordingOf(DOCKEY key) { return *host.host.cameras().find(key)->recording(); }

    RealDisk disk;
    DocKeyList added;
    int missing = 0;
};

TEST_F(SavingReading, GivesBackEveryPixel) {
    const struct {
        const char* format;
        int depth;
        bool isLower, hasPages;
    } cases[] = {{"png", 8, false, false}, {"png", 16, false, false}, {"png", 16, true, false},
                 {"tiff", 8, false, true}, {"tiff", 16, true, false}, {"tiff", 16, false, true},
                 {"bmp", 8, false, false}};
    for (const int bits : {8, 12, 16}) {
        useBits(bits);
        for (const auto& one : cases) {
            const SaveOrders saved = ordersOf(one.format, one.depth, one.isLower, one.hasPages);
            const QString first = saved.fileOf(saved.tracks[0], 0);
            save(saved);
            const QByteArray before = readByOthers(first, one.depth);
            open();
            for (const char* format : {"png", "tiff"}) {
                SaveOrders all = conversion(format, one.depth, one.isLower);
                all.format.options.isMultiPage = one.hasPages;
                EXPECT_EQ(run(all), QStringList("Gate: 4 of 4 up to 2, saved"));
                const QString converted = all.fileOf(all.tracks[0], 0);
                EXPECT_EQ(readByOthers(converted, one.depth).left(before.size()),
                          before.left(63 * 47 * one.depth / 8 * 3))
                    << bits << ' ' << first.toStdString() << ' ' << format;
            }
            close();
            removeFiles();
        }
    }
}

/// Levels that no picture of 8 bits has.
TEST_F(SavingReading, KeepsEveryBitOfACamera) {
    const auto asIn = [](int level, int bits, bool isLower) {
        return quint16(isLower ? level : bits == 8 ? level * 257 : level << (16 - bits));
    };
    QVector<int> levels(Size.width() * Size.height() * 3);
    for (const int bits : {8, 12, 16}) {
        useBits(bits);
        std::generate(levels.begin(), levels.end(), [&] { return QRandomGenerator::global()->bounded(1 << bits); });
        for (const bool wasLower : {false, true}) {
            QImage noise(Size, QImage::Format_RGBX64);
            for (int i = 0; i < Size.width() * Size.height(); ++i) {
                const auto channel = [&](int c) { return asIn(levels[3 * i + c], bits, wasLower); };
                reinterpret_cast<QRgba64*>(noise.scanLine(i / Size.width()))[i % Size.width()] =
                    qRgba64(channel(0), channel(1), channel(2), 0xffff);
            }
            for (const char* from : {"png", "tiff"}) {
                const SaveOrders saved = ordersOf(from, 16, wasLower);
                save(saved);
                EXPECT_TRUE(noise.save(path("noise.png")));
                outputOf("convert", {path("noise.png"), saved.fileOf(saved.tracks[0], 0)});
                open();
                for (const char* to : {"png", "tiff"}) {
                    for (const bool isLower : {false, true}) {
                        const SaveOrders all = conversion(to, 16, isLower);
                        run(all);
                        QByteArray expected(levels.size() * 2, 0);
                        for (int i = 0; i < levels.size(); ++i) {
                            qToLittleEndian(asIn(levels[i], bits, isLower), expected.data() + 2 * i);
                        }
                        EXPECT_EQ(readByOthers(all.fileOf(all.tracks[0], 0), 16), expected)
                            << bits << from << wasLower << to << isLower;
                        for (const QString& file : files().filter("c_")) {
                            QFile::remove(path(file));
                        }
                    }
                }
                close();
                removeFiles();
            }
        }
    }
}

}  // namespace
