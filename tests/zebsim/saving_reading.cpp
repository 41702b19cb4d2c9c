#include "FileError.h"
#include "FileRecording.h"
#include "Files.h"
#include "InformationReader.h"
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
    void save(const SaveOrders& all) { EXPECT_EQ(run(all).filter("saved").size(), 1) << reason.toStdString(); }
    /// Answers its key.
    DOCKEY open(const QString& name = "Gate.cih") {
        RealDisk disk;
        const FileRecording recording = FileRecording::open(path(name), disk);
        missing = recording.missing;
        host.host.cameras().listFiles(true);
        const DOCKEY key = host.host.cameras().addFile(recording.device);
        added.append(key);
        return key;
    }
    void close() {
        host.host.cameras().removeFiles(added);
        host.host.cameras().listFiles(false);
    }
    /// Of what is open, under another name.
    SaveOrders conversion(const QString& format, int depth, bool isLower) {
        SaveOrders all = ordersOf(format, depth, isLower);
        all.tracks[0].stem = path("c");
        all.hasInformation = false;
        return all;
    }
    Recording recordingOf(DOCKEY key) { return *host.host.cameras().find(key)->recording(); }

    DocKeyList added;
    int missing = 0;
};

/// Noise in all the bits that a camera has, which no picture of 8 bits shows.
TEST_F(SavingReading, KeepsEveryBitOfACamera) {
    const auto asIn = [](int level, int bits, const PictureOptions& options) {
        const int upper = bits == 8 ? level * 257 : level << (16 - bits);
        return quint16(options.depth == 8 ? (upper + 128) / 257 * 257 : options.isLower ? level : upper);
    };
    const auto forms = [this](bool isSource) {
        return QList<SaveOrders>{ordersOf("png"),      ordersOf("png", 16),        ordersOf("png", 16, true),
                                 ordersOf("tiff", 16), ordersOf("tiff", 16, true), ordersOf("tiff", 8, false, isSource),
                                 ordersOf("bmp")};
    };
    QVector<int> levels(Size.width() * Size.height() * 3);
    QRandomGenerator random(7);
    for (const int bits : {8, 12, 16}) {
        useBits(bits);
        std::generate(levels.begin(), levels.end(), [&] { return int(random.bounded(1U << bits)); });
        for (const SaveOrders& saved : forms(true)) {
            const PictureOptions& form = saved.format.options;
            QImage noise(Size, QImage::Format_RGBX64);
            for (int i = 0; i < Size.width() * Size.height(); ++i) {
                const auto channel = [&](int c) { return asIn(levels[3 * i + c], bits, form); };
                reinterpret_cast<QRgba64*>(noise.scanLine(i / Size.width()))[i % Size.width()] =
                    qRgba64(channel(0), channel(1), channel(2), 0xffff);
            }
            save(saved);
            EXPECT_TRUE(noise.save(path("noise.png")));
            const QString first = saved.fileOf(saved.tracks[0], 0);
            const QStringList depth = {"-depth", QString::number(form.depth)};
            outputOf("convert", QStringList(path("noise.png")) + depth + QStringList(first));
            open();
            for (SaveOrders all : forms(false)) {
                all.tracks[0].stem = path("c");
                all.tracks[0].step = 4;
                all.hasInformation = false;
                const PictureOptions& wanted = all.format.options;
                if (wanted.depth > form.depth) {
                    continue;
                }
                run(all);
                QByteArray expected(levels.size() * 2, 0);
                for (int i = 0; i < levels.size(); ++i) {
                    qToLittleEndian(asIn(levels[i], bits, wanted), expected.data() + 2 * std::ptrdiff_t(i));
                }
                const QString made = all.fileOf(all.tracks[0], 0);
                EXPECT_TRUE(readByOthers(made, 16) == expected)
                    << bits << ' ' << first.toStdString() << ' ' << form.depth << form.isLower << " -> "
                    << made.toStdString() << ' ' << wanted.depth << wanted.isLower;
                QFile::remove(made);
            }
            close();
            removeFiles();
        }
    }
}

TEST_F(SavingReading, NumbersAnewWhatWasThinnedOut) {
    const struct {
        int first, last, step, rate, zero;
        QList<int> expected;
    } cases[] = {{98, 103, 1, 1000, 90, {98, 103, 1000, 100, 90}},
                 {98, 103, 2, 1000, 100, {0, 2, 500, 1, 1}},
                 {97, 106, 3, 1000, 90, {0, 3, 333, 1, -2}},
                 {101, 140, 7, 10, 160, {0, 5, 1, 0, 8}},
                 {0, 9, 100, 10, 100, {0, 0, 1, 1, 1}}};
    for (const auto& one : cases) {
        prepare(1, "Gate", one.first, one.last);
        host.camera(1).change(
            {{"recordedRate", one.rate}, {"triggerOffsetEnabled", true}, {"triggerOffset", one.zero}});
        SaveOrders all = ordersOf("bmp");
        all.tracks[0].step = one.step;
        save(all);
        EXPECT_EQ(QString(readInformation(path("Gate.cih")).toJson()), QString(contentOf(path("Gate.cih"))));
        const Recording read = recordingOf(open());
        EXPECT_EQ(QList<int>({read.first, read.last, int(read.rate), read.trigger, read.zero}), one.expected)
            << one.step;
        close();
        removeFiles();
    }
}

TEST_F(SavingReading, RefusesWhatItCannotTrust) {
    save(ordersOf("bmp"));
    const QByteArray good = contentOf(path("Gate.cih"));
    const QStringList before = files();
    const auto refusal = [&](const QByteArray& text) {
        write(path("Gate.cih"), text);
        return thrownBy([this] { readInformation(path("Gate.cih")); });
    };
    EXPECT_EQ(refusal(good), "");
    EXPECT_EQ(refusal(QByteArray(good).replace("\"bits\"", "\"later\": {}, \"bits\"")), "")
        << "unknown to this version";
    for (int size = 0; size < good.size() - 3; size += 7) {
        EXPECT_EQ(refusal(good.left(size)).find(path("Gate.cih").toStdString()), 0U) << size;
    }
    const char* const foreign = "it is no recording of this program";
    for (const char* text : {"", "Camera : other", "[]", "{}", "{\"zebsim\": \"settings\"}", "\x89PNG\r\n"}) {
        EXPECT_EQ(refusal(text), path("Gate.cih").toStdString() + ": " + foreign) << text;
    }
    EXPECT_NE(refusal("{\"zebsim\": " + QByteArray(1000000, '[')).find("levels"), std::string::npos);
    EXPECT_NE(refusal(good + QByteArray(17 << 20, ' ')).find("larger"), std::string::npos);
    const struct {
        const char* from;
        const char* to;
        const char* why;
    } cases[] = {
        {"\"version\": 1", "\"version\": 2", "newer version"},
        {"\"camera\": \"Gate\"", "\"camera\": 7", "camera: a text"},
        {"\"bits\": 8", "\"bits\": 17", "bits: a whole number"},
        {"\"rate\": 1000", "\"rate\": 0", "rate: a whole number"},
        {"\"rate\": 1000", "\"rate\": 1e99", "rate: a whole number"},
        {"\"rate\": 1000", "\"speed\": 1000", "rate: missing"},
        {"[63,47]", "[63]", "resolution: two numbers"},
        {"[63,47]", "[0,47]", "no picture is that large"},
        {"[63,47]", "[16384,16384]", "no picture is that large"},
        {"\"step\":1", "\"step\":0", "saved.step: a whole number"},
        {"\"last\":100", "\"last\":98", "saved.last: a whole number"},
        {"\"last\":100", "\"last\":1000000000", "no recording is that long"},
        {"\"last\":100", "\"last\":101", "files: 3 names are expected"},
        {"\"range\": [0,", "\"range\": [100,", "range: the frames that were saved are not in it"},
        {"\"date\": \"", "\"date\": \"x", "date: a date"},
        {"Gate_-00001.bmp", "Gate_00000.bmp", "files: a name stands there twice"},
        {"\"trigger\": 100", "\"trigger\": 1e10", "trigger: a whole number"},
        {"\"partition\": 1", "\"partition\": 0", "partition: a whole number"},
        {"\"items\": []", "\"items\": [{\"value\":\"x\"}]", "items: "},
        {"\"id\":\"bmp\"", "\"id\":\"mp4\"", "A video can't be opened again."},
        {"\"id\":\"bmp\"", "\"id\":\"raww\"", "no format"},
        {"\"pages\":false", "\"pages\":true", "has none"},
        {"Gate_00000.bmp", "../Gate_00000.bmp", "no name of a file in the same folder"},
        {"Gate_00000.bmp", "/etc/passwd", "no name of a file"},
        {"Gate_00000.bmp", "a/b", "no name of a file"},
        {"Gate_00000.bmp", "..\\\\b", "no name of a file"},
        {"Gate_00000.bmp", "..", "no name of a file"},
        {"Gate_00000.bmp", "", "no name of a file"},
        {"Gate_00000.bmp", "a\\u0000b", "files: \"a"},
    };
    for (const auto& one : cases) {
        const std::string why = refusal(QByteArray(good).replace(one.from, one.to));
        EXPECT_EQ(why.find(path("Gate.cih").toStdString()), 0U) << one.to;
        EXPECT_NE(why.find(one.why), std::string::npos) << one.to << " -> " << why;
    }
    EXPECT_EQ(files(), before) << "nothing else was touched";
}

/// A disk that counts how often it is asked.
struct CountingDisk : RealDisk {
    const QStringList& namesIn(const QString& folder) override {
        ++asked;
        return RealDisk::namesIn(folder);
    }
    int asked = 0;
};

TEST_F(SavingReading, ListsAFolderOfTenThousandFilesOnce) {
    constexpr int Frames = 10000;
    prepare(1, "Gate", 0, Frames - 1);
    host.camera(1).change({{"recordedRange", QVariantList{0, Frames - 1}}, {"recordedTrigger", 0}});
    const SaveOrders all = ordersOf("bmp");
    const RecordingInformation information = informationOf(all, all.tracks[0], Frames);
    for (const QString& name : information.files) {
        write(path(name), "");
    }
    for (const char* name : {"Gate_00007.bmp", "Gate_09999.bmp"}) {
        QFile::remove(path(name));
    }
    write(path("Gate.cih"), information.toJson());
    CountingDisk counting;
    const FileRecording opened = FileRecording::open(path("Gate.cih"), counting);
    EXPECT_EQ(counting.asked, 1);
    EXPECT_EQ(opened.missing, 2);
    EXPECT_EQ(opened.device.heads[0].recordedRange, QPoint(0, Frames - 1));
}

TEST_F(SavingReading, LosesTheRestOfARecordingByNameAndShowsWhy) {
    useBits(8);
    const struct {
        const char* what;
        std::function<void(const QString&)> spoil;
        const char* why;
    } cases[] = {
        {"gone", [](const QString& file) { QFile::remove(file); }, "No such file"},
        {"damaged", [](const QString& file) { write(file, "\x89PNG\r\n"); }, "it is no picture"},
        {"another size", [](const QString& file) { QImage(5, 5, QImage::Format_RGB32).save(file); }, "not as large"},
        {"a link", [this](const QString& file) { QFile::rename(file, path("x")), QFile::link(path("x"), file); },
         "it is a link"},
        {"a pipe", [](const QString& file) { QFile::remove(file), outputOf("mkfifo", {file}); }, "not a regular file"},
    };
    for (const auto& one : cases) {
        const SaveOrders saved = ordersOf("png");
        const QString third = saved.fileOf(saved.tracks[0], 2);
        save(saved);
        one.spoil(third);
        const DOCKEY key = open();
        EXPECT_EQ(missing, QFile::exists(third) ? 0 : 1);
        EXPECT_EQ(run(conversion("bmp", 8, false)), QStringList("Gate: 2 of 4 up to 0, lost")) << one.what;
        EXPECT_TRUE(reason.contains(QFileInfo(third).fileName()) && reason.contains(one.why)) << reason.toStdString();
        const Camera& camera = *host.host.cameras().find(key);
        const CameraFrame frame = CameraFrame::recorded(camera.state(), {}, recordingOf(key), 101);
        EXPECT_THROW(drawFrame(frame, Size), FileError);
        const QImage shown = drawFrameOrFailure(frame, {320, 240});
        EXPECT_EQ(shown.size(), QSize(320, 240));
        EXPECT_NE(shown,
                  drawFrameOrFailure(CameraFrame::recorded(camera.state(), {}, recordingOf(key), 99), {320, 240}));
        close();
        removeFiles();
    }
    SaveOrders pages = ordersOf("tiff", 8, false, true);
    save(pages);
    outputOf("convert", {path("Gate.tif[0-1]"), path("Gate.tif")});
    open();
    EXPECT_EQ(run(conversion("bmp", 8, false)), QStringList("Gate: 2 of 4 up to 0, lost"));
    EXPECT_TRUE(reason.contains("fewer pages")) << reason.toStdString();
    close();
    removeFiles();
    save(ordersOf("tiff"));
    open();
    QFile told(path("Gate.cih"));
    EXPECT_TRUE(told.open(QIODevice::ReadWrite));
    EXPECT_TRUE(told.setFileTime(QDateTime::fromSecsSinceEpoch(1), QFileDevice::FileModificationTime));
    EXPECT_EQ(run(conversion("bmp", 8, false)), QStringList("Gate: 0 of 4 up to 0, lost"));
    EXPECT_TRUE(reason.contains("it has changed since the recording was opened")) << reason.toStdString();
}

TEST_F(SavingReading, LosesWhatIsClosedMeanwhile) {
    prepare(1, "Gate", 0, 299);
    save(ordersOf("png"));
    open();
    SaveOrders all = conversion("bmp", 8, false);
    all.diskFault = [this](const QString&, qint64) {
        QMetaObject::invokeMethod(
            qApp, [this] { close(); }, Qt::BlockingQueuedConnection);
        return QString();
    };
    const QString told = run(all).join('|');
    EXPECT_TRUE(told.endsWith(", lost")) << "it reads ahead, but not that far: " << told.toStdString();
    EXPECT_EQ(reason, "the recording was closed");
}

}  // namespace
