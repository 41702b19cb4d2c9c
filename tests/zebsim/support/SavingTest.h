#pragma once

#include "FramePicture.h"
#include "SaveJob.h"
#include "Until.h"
#include "support/TestHost.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

/// What another program answers.
inline QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments, QIODevice::ReadOnly);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " is not installed";
    EXPECT_EQ(process.readAllStandardError(), "") << arguments.join(' ').toStdString();
    return process.readAllStandardOutput();
}

/// The pixels as another program reads them, red, green and blue.
inline QByteArray readByOthers(const QString& path, int depth) {
    return outputOf("convert", {path, "-depth", QString::number(depth), "-endian", "LSB", "rgb:-"});
}

inline QByteArray pixelsOf(const QImage& picture, int depth) {
    const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
    QByteArray bytes;
    for (int i = 0; i < plain.width() * plain.height(); ++i) {
        const QRgb pixel = plain.pixel(i % plain.width(), i / plain.width());
        for (const int colour : {qRed(pixel), qGreen(pixel), qBlue(pixel)}) {
            bytes.append(depth / 8, char(colour));
        }
    }
    return bytes;
}

/// What preferences choose, by their keys without the family.
inline SaveOrders chosen(const QHash<QString, QVariant>& prefs) {
    return chosenOrders([&](const QString& key) { return prefs.value(QString(key).remove("export/")); }, "export/");
}

/// Three cameras, the second without a recording; two frames are to be kept of the first and three of the third.
class SavingTest : public testing::Test {
protected:
    static constexpr QSize Size{63, 47};

    SavingTest() {
        prepare(1, "Gate", 99, 100);
        prepare(3, "Nozzle/2", 100, 102);
        host.camera(2).change({{"connected", true}});
    }

    void prepare(DOCKEY key, const QString& name, int first, int last) {
        host.camera(key).change({{"name", name}, {"connected", true}, {"recorded", true}, {"recordedRate", 1000}});
        host.camera(key).change({{"resolution", QVariantList{Size.width(), Size.height()}}, {"recordedTrigger", 100}});
        host.camera(key).change(
            {{"recordedRange", QVariantList{0, 499}}, {"selectedRange", QVariantList{first, last}}});
    }
    SaveSources sources() { return saveSources(host.host.cameras()); }
    /// The files of each track are called as it is, in the folder of its own.
    SaveOrders orders(const QString& format = "png") {
        SaveOrders wanted{saveFormat(format), tracksOfEach(sources())};
        for (SaveTrack& track : wanted.tracks) {
            track.stem = path(QString(track.name).replace('/', '_'));
        }
        return wanted;
    }
    /// What became of each track, as "Gate: 2 of 2 up to 0, saved".
    QStringList run(const SaveOrders& wanted) {
        SaveJob job(host.host.cameras(), wanted);
        job.start();
        EXPECT_TRUE(until([&job] { return !job.isRunning(); }));
        return told(job);
    }
    QStringList told(const SaveJob& job) {
        static const QStringList ends = {"saved", "lost", "failed", "cancelled"};
        QStringList texts;
        for (const SaveOutcome& outcome : job.outcomes()) {
            const QString numbers = QStringLiteral(": %1 of %2 up to %3, ");
            texts << outcome.name % numbers.arg(outcome.saved).arg(outcome.frames).arg(outcome.lastNumber) %
                         ends.at(outcome.end);
            reason = outcome.reason;
            failedFile = outcome.file.isEmpty() ? failedFile : QFileInfo(outcome.file).fileName();
        }
        return texts;
    }
    QString path(const QString& name) const { return QDir(folder.path()).filePath(name); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    void removeFiles() const {
        for (const QString& name : files()) {
            QFile::remove(path(name));
        }
    }

    TestHost host{standardRig(3)};
    QTemporaryDir folder;
    QString failedFile;
    /// Of the last track.
    QString reason;
};
