#include "SaveBench.h"

#include "CameraBank.h"
#include "FaultPlan.h"
#include "FileWriter.h"
#include "FramePicture.h"
#include "RealClock.h"
#include "RecordedRig.h"
#include "SaveJob.h"
#include "SaveProgress.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr QSize Large(1024, 1024);
constexpr int Cameras = 4;
constexpr int FramesEach = 12;
constexpr int Grain = 8;
constexpr int TickMs = 5;

/// How late the event loop is, at most.
class Lateness {
public:
    Lateness() {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout,
                         [this] { m_worst = std::max(m_worst, m_since.restart() - TickMs); });
        m_since.start();
        m_timer.start(TickMs);
    }
    /// The turn that is under way counts too.
    double worst() const { return double(std::max(m_worst, m_since.elapsed() - TickMs)); }

private:
    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_worst = 0;
};

/// Cameras with a folder for their frames.
class Scene {
public:
    Scene(int cameras, const QSize& size, int frames, int grain) {
        m_bank.replace(recordedRig(cameras, size, frames, grain));
    }

    FaultPlan& faults() { return m_faults; }
    QString folder() const { return m_folder.path(); }
    /// Of the event loop while it has saved, in milliseconds.
    double longestTurn() const { return m_longestTurn; }
    SaveOrders orders(const QString& format) const {
        SaveOrders orders{saveFormat(format), tracksOfEach(saveSources(m_bank))};
        for (SaveTrack& track : orders.tracks) {
            track.stem = m_folder.filePath(track.name);
        }
        return orders;
    }
    /// Milliseconds. `follow` is called now and then.
    double save(const SaveOrders& orders, const std::function<void(const SaveJob&)>& follow = {}) {
        QElapsedTimer time;
        time.start();
        SaveJob job(m_bank, orders);
        QEventLoop loop;
        QObject::connect(&job, &SaveJob::finished, &loop, &QEventLoop::quit);
        if (follow) {
            QObject::connect(&job, &SaveJob::progressed, &loop, [&] { follow(job); });
        }
        SaveProgress progress(job, nullptr);
        progress.show();
        const Lateness lateness;
        job.start();
        loop.exec();
        m_longestTurn = std::max(m_longestTurn, lateness.worst());
        const double took = double(time.elapsed());
        for (const SaveOutcome& outcome : job.outcomes()) {
            if (outcome.end != SaveOutcome::Saved) {
                throw std::runtime_error(outcome.reason.toStdString());
            }
        }
        return took;
    }

private:
    RealClock m_clock;
    FaultPlan m_faults;
    CameraBank m_bank{m_clock, m_faults};
    QTemporaryDir m_folder;
    double m_longestTurn = 0;
};

void writeRaw(const SaveOrders& orders, const QString& path) {
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    for (const SaveTrack& track : orders.tracks) {
        for (int index = 0; index < track.frames(); ++index) {
            const QImage picture = track.picture(index).convertToFormat(QImage::Format_RGB888);
            file.write(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes());
        }
    }
}

double saveByOther(const QString& raw, const QString& folder, const SaveFormat& format) {
    const QString threads = QString::number(QThread::idealThreadCount());
    const QString sides = QStringLiteral("%1x%2").arg(Large.width()).arg(Large.height());
    QStringList arguments{"-v",          "error", "-f", "rawvideo", "-pix_fmt", "rgb24",
                          "-video_size", sides,   "-i", raw,        "-threads", threads};
    if (format.id == QLatin1String("tiff")) {
        arguments << QStringLiteral("-compression_algo") << QStringLiteral("lzw");
    }
    if (format.id == QLatin1String("jpeg")) {
        arguments << QStringLiteral("-q:v") << QStringLiteral("2");
    }
    QElapsedTimer time;
    time.start();
    // As our own threads stand behind others.
    if (QProcess::execute(QStringLiteral("nice"),
                          QStringList{"-n", "5", "ffmpeg"} + arguments +
                              QStringList(folder % QStringLiteral("/other_%05d.") % format.suffix)) != 0) {
        throw std::runtime_error("ffmpeg has failed, or is not installed.");
    }
    syncDisk(folder);
    return double(time.elapsed());
}

void noteTurn(QJsonObject& numbers, const Scene& scene) {
    const QString name = QStringLiteral("turn");
    numbers.insert(name, std::max(numbers.value(name).toDouble(), scene.longestTurn()));
}

void comparePictures(QJsonObject& numbers, int grain, const QString& ending) {
    Scene scene(Cameras, Large, FramesEach, grain);
    const QString raw = scene.folder() % QStringLiteral("/raw");
    writeRaw(scene.orders({}), raw);
    syncDisk(scene.folder());
    for (const char* id : {"png", "tiff", "jpeg"}) {
        const SaveOrders orders = scene.orders(QLatin1String(id));
        numbers.insert(QLatin1String(id) % ending, scene.save(orders));
        numbers.insert(QLatin1String(id) % ending % QLatin1String("Other"),
                       saveByOther(raw, scene.folder(), orders.format));
    }
    noteTurn(numbers, scene);
}

/// MiB, of a line of the process's status.
double statusOf(const QByteArray& name) {
    QFile file(QStringLiteral("/proc/self/status"));
    file.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = file.readAll().split('\n');
    const auto line =
        std::find_if(lines.begin(), lines.end(), [&](const QByteArray& one) { return one.startsWith(name); });
    return line->mid(name.size() + 1).trimmed().split(' ').first().toDouble() / 1024;
}

}  // namespace

QJsonObject SaveBench::run() {
    QJsonObject numbers;
    // The first picture of a program looks for fonts.
    Scene first(1, Large, 2, Grain);
    first.save(first.orders(QStringLiteral("png")));
    comparePictures(numbers, 0, {});
    comparePictures(numbers, Grain, QStringLiteral("Noisy"));
    constexpr int SlowCameras = 8;
    constexpr int SlowFrames = 64;
    constexpr int Delay = 50;
    Scene slow(SlowCameras, QSize(512, 512), SlowFrames, 0);
    for (DOCKEY key = 1; key <= SlowCameras; ++key) {
        slow.faults().plant(key, QStringLiteral("readFrame"), {{}, Delay, false});
    }
    numbers.insert(QStringLiteral("slow"), slow.save(slow.orders(QStringLiteral("png"))));
    numbers.insert(QStringLiteral("slowWait"), SlowFrames * Delay);
    noteTurn(numbers, slow);
    return numbers;
}

QJsonObject SaveBench::memory(int cameras) {
    Scene scene(cameras, QSize(256, 256), 1000, 0);
    const SaveOrders orders = scene.orders(QStringLiteral("png"));
    std::vector<int> emptied(orders.tracks.size(), 0);
    const double before = statusOf("VmRSS");
    scene.save(orders, [&](const SaveJob& job) {
        const std::vector<int> saved = job.done();
        for (std::size_t track = 0; track < saved.size(); ++track) {
            for (; emptied[track] < saved[track]; ++emptied[track]) {
                QFile::resize(orders.fileOf(orders.tracks[track], emptied[track]), 0);
            }
        }
    });
    return {{QStringLiteral("growth"), statusOf("VmHWM") - before}};
}
