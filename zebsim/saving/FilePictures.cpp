#include "FilePictures.h"

#include "FileError.h"
#include "PictureReader.h"
#include "TargetDisk.h"
#include "TextKey.h"

#include <QCache>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int KeptKib = 256 << 10;

/// Pictures that were read, by their recording and frame.
class Kept {
public:
    static Kept& instance() {
        static Kept kept;
        return kept;
    }

    QImage find(const FilePictures* recording, int frame) {
        const std::lock_guard lock(m_mutex);
        const QImage* picture = m_pictures.object({recording, frame});
        return picture ? *picture : QImage();
    }
    void keep(const FilePictures* recording, int frame, const QImage& picture) {
        const std::lock_guard lock(m_mutex);
        m_pictures.insert({recording, frame}, new QImage(picture), int(picture.sizeInBytes() >> 10) + 1);
    }
    void forget(const FilePictures* recording) {
        const std::lock_guard lock(m_mutex);
        for (const Key& key : m_pictures.keys()) {
            if (key.first == recording) {
                m_pictures.remove(key);
            }
        }
    }

private:
    using Key = QPair<const FilePictures*, int>;

    std::mutex m_mutex;
    QCache<Key, QImage> m_pictures{KeptKib};
};

}  // namespace

FilePictures::FilePictures(const QString& path, RecordingInformation information)
    : m_information(std::move(information)),
      m_folder(RealDisk().canonical(QFileInfo(path).path() % QLatin1Char('/'))),
      m_name(QFileInfo(path).fileName()),
      m_written(QFileInfo(path).lastModified()) {}

FilePictures::~FilePictures() {
    Kept::instance().forget(this);
}

QImage FilePictures::picture(int frame) const {
    checkUnchanged();
    QImage picture = Kept::instance().find(this, frame);
    if (picture.isNull()) {
        picture = aligned(read(frame - m_information.recording.first));
        Kept::instance().keep(this, frame, picture);
    }
    return picture;
}

QStringList FilePictures::files() const {
    QStringList paths{m_folder % m_name};
    for (const QString& name : m_information.files) {
        paths.append(m_folder % name);
    }
    return paths;
}

QImage FilePictures::read(int index) const {
    const SaveFormat& format = m_information.format;
    const QString path = m_folder % m_information.files.value(format.isOneFile() ? 0 : index);
    if (QFileInfo(path).isSymLink()) {
        throw FileError(path, TextKey("it is a link"));
    }
    return format.isOneFile() ? readPage(path, index)
                              : readPicture(path, format.id, m_information.recording.resolution);
}

void FilePictures::checkUnchanged() const {
    const QFileInfo telling(m_folder % m_name);
    if (telling.exists() && telling.lastModified() != m_written) {
        throw FileError(telling.filePath(), TextKey("it has changed since the recording was opened"));
    }
}

QImage FilePictures::readPage(const QString& path, int index) const {
    quint64 page = 0;
    {
        const std::lock_guard lock(m_mutex);
        if (m_pages.size() <= index) {
            m_pages = tiffPages(path, m_information.frames);
        }
        if (index < 0 || m_pages.size() <= index) {
            throw FileError(path, TextKey("it has fewer pages than the recording has frames"));
        }
        page = m_pages[index];
    }
    return readTiffPage(path, page, m_information.recording.resolution);
}

QImage FilePictures::aligned(QImage picture) const {
    const int shift = 16 - m_information.bits;
    if (!m_information.format.options.isLower || picture.format() != QImage::Format_RGBX64 || shift == 0) {
        return picture;
    }
    // 8 bits fill all 16.
    const auto upper = [shift](quint16 level) {
        return quint16(shift == 8 ? std::min<int>(level, 0xff) * 257 : level << shift);
    };
    for (int y = 0; y < picture.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgba64*>(picture.scanLine(y));
        std::transform(pixels, pixels + picture.width(), pixels, [&upper](QRgba64 pixel) {
            return qRgba64(upper(pixel.red()), upper(pixel.green()), upper(pixel.blue()), 0xffff);
        });
    }
    return picture;
}
