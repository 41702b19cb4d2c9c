// Reads the pictures of a folder, `read_frames FOLDER RATE NAME=CAMERA...`: whether each shows what its name says.
// `NAME=CAMERA` for a camera that is called otherwise than its files, with or without its number text. Prints a line
// for each camera and its numbers.
#include "FramePicture.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QMap>
#include <QRegularExpression>

#include <iostream>

#include <algorithm>

namespace {

bool showsFrame(const QImage& picture, const QString& camera, qint64 number, qint64 rate) {
    const QImage expected =
        drawFrame({camera, picture.size(), number, number * 1000000 / rate, {}, {}}, picture.size());
    return picture.convertToFormat(expected.format()) == expected;
}

/// As "-4..3"; numbers that do not follow each other stand one by one.
QString rangeText(const QList<qint64>& numbers) {
    if (numbers.last() - numbers.first() + 1 == numbers.size()) {
        return QStringLiteral("%1..%2").arg(numbers.first()).arg(numbers.last());
    }
    QStringList texts;
    for (const qint64 number : numbers) {
        texts << QString::number(number);
    }
    return texts.join(QLatin1Char(' '));
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const QDir folder(arguments.value(1));
    const qint64 rate = arguments.value(2).toLongLong();
    QMap<QString, QString> cameras;
    for (const QString& pair : arguments.mid(3)) {
        cameras.insert(pair.section(QLatin1Char('='), 0, 0), pair.section(QLatin1Char('='), 1));
    }
    const QRegularExpression pattern(QStringLiteral("^((.*?)(?:_C\\d+H\\d+S\\d+)?)_(-?\\d+)\\.png$"));
    QMap<QString, QList<qint64>> numbers;
    QStringList files = folder.entryList(QDir::Files | QDir::Hidden);
    // What stands beside the images of a recording.
    files.erase(std::remove_if(files.begin(), files.end(), [](const QString& file) { return file.endsWith(".cih"); }),
                files.end());
    for (const QString& file : qAsConst(files)) {
        const QRegularExpressionMatch match = pattern.match(file);
        const QString name = match.captured(1);
        const QString camera = cameras.value(name, cameras.value(match.captured(2), match.captured(2)));
        const qint64 number = match.captured(3).toLongLong();
        if (!match.hasMatch() || !showsFrame(QImage(folder.filePath(file)), camera, number, rate)) {
            std::cerr << file.toStdString() << " does not show what its name says\n";
            return 1;
        }
        numbers[name].append(number);
    }
    for (auto camera = numbers.begin(); camera != numbers.end(); ++camera) {
        std::sort(camera->begin(), camera->end());
        std::cout << camera.key().toStdString() << ' ' << rangeText(*camera).toStdString() << '\n';
    }
    return 0;
}
