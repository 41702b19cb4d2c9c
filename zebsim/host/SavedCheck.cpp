#include "SavedCheck.h"

#include "FileError.h"
#include "InformationReader.h"
#include "JsonError.h"
#include "Medium.h"
#include "PictureReader.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr int MostRows = 8;

/// Neither is known to be of another shoot.
bool isOfOneShoot(const RecordingInformation& left, const RecordingInformation& right) {
    const QString& shoot = left.recording.shoot;
    const QString& other = right.recording.shoot;
    return shoot.isEmpty() || other.isEmpty() || shoot == other;
}

/// It keeps less than the camera has given.
bool isWithLoss(const RecordingInformation& saved) {
    return saved.format.id == QLatin1String("jpeg") || saved.format.options.depth < saved.bits;
}

/// The same recording of the same camera, numbered in the same way.
bool isSame(const RecordingInformation& left, const RecordingInformation& right) {
    const Recording& of = left.recording;
    const Recording& other = right.recording;
    return left.camera == right.camera && left.address == right.address && left.model == right.model &&
           of.partition == other.partition && of.rate == other.rate && of.shutter == other.shutter &&
           of.resolution == other.resolution && of.trigger == other.trigger && of.first == other.first &&
           of.last == other.last && isOfOneShoot(left, right);
}

/// A link leads to pictures that may be the ones about to go. Of a picture in a file of its own the head is read.
int picturesIn(const QString& path, const RecordingInformation& saved) {
    const QFileInfo file(path);
    if (!file.isFile() || file.isSymLink()) {
        return 0;
    }
    if (!saved.format.isOneFile()) {
        return QImageReader(path).size() == saved.recording.resolution ? 1 : 0;
    }
    try {
        return tiffPages(path, saved.frames).size();
    } catch (const FileError&) {
        return 0;
    }
}

/// Numbers with one distance between them.
QString rowText(int first, int count, int step) {
    const int last = first + (count - 1) * step;
    if (count == 1) {
        return QString::number(first);
    }
    if (step == 1) {
        return QStringLiteral("%1 \u2026 %2").arg(first).arg(last);
    }
    return QStringLiteral("%1, %2, ..., %3").arg(first).arg(first + step).arg(last);
}

}  // namespace

SavedCheck::SavedCheck(const QString& folder) {
    for (const QString& path : recordingsBelow(QFileInfo(folder).canonicalFilePath())) {
        try {
            m_copies.append({QFileInfo(path).path(), readInformation(path)});
        } catch (const JsonError&) {
            // It is no recording that can be opened again.
        }
    }
}

SavedCheck::Result SavedCheck::of(const RecordingInformation& whole, const Medium& medium, Copies copies) const {
    const RecordingInformation opened = asOpened(whole);
    Result result;
    result.first = opened.recording.first - opened.recording.zero;
    result.frames.resize(std::size_t(whole.frames));
    for (const Copy& copy : m_copies) {
        const RecordingInformation& saved = copy.information;
        const bool isOfCamera = isSame(whole, saved);
        const bool isLeftOut = copies == WithoutLoss && isWithLoss(saved);
        if (isLeftOut || (!isOfCamera && !isSame(opened, saved))) {
            continue;
        }
        if (medium.holds(copy.folder)) {
            result.isOnMedium = true;
            continue;
        }
        const RecordingInformation& numbered = isOfCamera ? whole : opened;
        for (int index = 0; index < saved.frames; ++index) {
            const qint64 away =
                qint64(index) * saved.step + saved.recording.selectedFirst - numbered.recording.selectedFirst;
            const auto frame = std::size_t(away / numbered.step);
            const bool isMember = away >= 0 && away % numbered.step == 0 && frame < result.frames.size();
            if (isMember && !result.frames[frame] && isThere(copy, index)) {
                result.frames[frame] = true;
                ++result.saved;
            }
        }
    }
    return result;
}

bool SavedCheck::isThere(const Copy& copy, int index) const {
    const RecordingInformation& saved = copy.information;
    const bool isOneFile = saved.format.isOneFile();
    const QString path = QDir(copy.folder).filePath(saved.files.value(isOneFile ? 0 : index));
    auto known = m_pictures.find(path);
    if (known == m_pictures.end()) {
        known = m_pictures.insert(path, picturesIn(path, saved));
    }
    return (isOneFile ? index : 0) < *known;
}

QString SavedCheck::Result::missing() const {
    QList<int> numbers;
    for (std::size_t frame = 0; frame < frames.size(); ++frame) {
        if (!frames[frame]) {
            numbers.append(first + int(frame));
        }
    }
    QStringList rows;
    for (int at = 0; at < numbers.size();) {
        if (rows.size() == MostRows) {
            rows.append(QStringLiteral("..."));
            break;
        }
        const auto distance = [&numbers](int index) { return numbers[index + 1] - numbers[index]; };
        int end = at + 1;
        while (end < numbers.size() && distance(end - 1) == distance(at)) {
            ++end;
        }
        const int step = end - at > 1 ? distance(at) : 1;
        // Two are a row only where they are neighbours.
        const int count = step > 1 && end - at == 2 ? 1 : end - at;
        rows.append(rowText(numbers[at], count, step));
        at += count;
    }
    return rows.join(QStringLiteral(", "));
}
