#include "MediaShelf.h"

#include "HostEvents.h"
#include "TextKey.h"
#include "ZebMedia.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <stdexcept>

namespace {

/// Drives begin behind those that a machine has itself; a drive of another kind stands at its number.
constexpr int FirstLetter = 'D' - 'A';
constexpr int LastLetter = 'Z' - 'A';
constexpr int FirstDrive = 1;
constexpr int LastDrive = 16;

[[noreturn]] void refuse(const QString& reason, const QString& medium) {
    throw std::runtime_error(QString(medium % QStringLiteral(": ") % reason).toStdString());
}

/// The folder of `path`, or the nearest above it that is there, without links.
QString nearestFolder(const QString& path) {
    QFileInfo there(QDir::cleanPath(path));
    while (!there.exists() && there.path() != there.filePath()) {
        there.setFile(there.path());
    }
    return there.canonicalFilePath();
}

}  // namespace

QStringList MediaShelf::replace(const QList<RigMedium>& media) {
    for (const Held& medium : this->media()) {
        pullOut(medium);
    }
    QStringList failures;
    for (const RigMedium& medium : media) {
        try {
            putIn(medium);
        } catch (const std::exception& e) {
            failures.append(QString::fromUtf8(e.what()));
        }
    }
    return failures;
}

MediaShelf::Held MediaShelf::putIn(const RigMedium& settings) {
    if (settings.name.trimmed().isEmpty()) {
        refuse(TextKey("a medium needs a name"), settings.folder);
    }
    if (find(settings.kind, settings.name)) {
        refuse(TextKey("a medium of that name is in already"), settings.name);
    }
    // Before its folder is made.
    const QString around = nearestFolder(settings.folder);
    const QString folder = QFileInfo(settings.folder).canonicalFilePath();
    for (const Held& other : media()) {
        const bool holdsOther = !folder.isEmpty() && other->folder().startsWith(folder % QLatin1Char('/'));
        if (other->holds(around) || holdsOther) {
            refuse(TextKey("its folder belongs to another medium"), settings.name);
        }
    }
    const auto medium = std::make_shared<Medium>(settings, freePlace(settings));
    {
        const std::lock_guard lock(m_mutex);
        m_media.push_back(medium);
    }
    Q_EMIT m_events.mediaChanged();
    return medium;
}

zeb::Medium MediaShelf::freePlace(const RigMedium& medium) const {
    const bool isCard = medium.kind == RigMedium::SdCard;
    // A QUIK Drive has one slot, its password goes by the drive alone.
    zeb::Medium place{medium.kind, isCard ? FirstLetter : FirstDrive, medium.kind == zeb::CFast ? 1 : 0, medium.name};
    const int last = isCard ? LastLetter : LastDrive;
    while (place.drive <= last && find(medium.kind, place)) {
        ++place.drive;
    }
    if (place.drive > last) {
        refuse(TextKey("there is no place for one more medium"), medium.name);
    }
    return place;
}

void MediaShelf::pullOut(const Held& medium) {
    medium->pullOut();
    const auto open = m_open.find(medium->kind());
    const bool wasOpen = open != m_open.end() && open->second == medium;
    if (wasOpen) {
        m_open.erase(open);
    }
    {
        const std::lock_guard lock(m_mutex);
        m_media.erase(std::remove(m_media.begin(), m_media.end(), medium), m_media.end());
    }
    if (wasOpen) {
        Q_EMIT m_events.openMediumGone(medium->kind(), medium->name());
    }
    Q_EMIT m_events.mediaChanged();
}

void MediaShelf::lookAround() {
    std::vector<Held> gone;
    {
        const std::lock_guard lock(m_mutex);
        std::copy_if(m_media.begin(), m_media.end(), std::back_inserter(gone),
                     [](const Held& medium) { return !medium->isThere(); });
    }
    for (const Held& medium : gone) {
        pullOut(medium);
    }
}

std::vector<MediaShelf::Held> MediaShelf::held(int kind) const {
    const std::lock_guard lock(m_mutex);
    std::vector<Held> media;
    std::copy_if(m_media.begin(), m_media.end(), std::back_inserter(media),
                 [kind](const Held& medium) { return (kind < 0 || medium->kind() == kind) && medium->isThere(); });
    return media;
}

MediaShelf::Held MediaShelf::find(int kind, const zeb::Medium& place) const {
    for (const Held& medium : media(kind)) {
        if (zeb::isSamePlace(medium->place(), place)) {
            return medium;
        }
    }
    return nullptr;
}

MediaShelf::Held MediaShelf::find(int kind, const QString& name) const {
    for (const Held& medium : media(kind)) {
        if (medium->name() == name) {
            return medium;
        }
    }
    return nullptr;
}

MediaShelf::Held MediaShelf::at(const QString& path) const {
    const QString folder = nearestFolder(path);
    for (const Held& medium : media()) {
        if (medium->holds(folder)) {
            return medium;
        }
    }
    return nullptr;
}

MediaShelf::Held MediaShelf::open(int kind) const {
    const auto open = m_open.find(kind);
    return open != m_open.end() && open->second->isThere() ? open->second : nullptr;
}

void MediaShelf::setOpen(const Held& medium) {
    m_open[medium->kind()] = medium;
    Q_EMIT m_events.mediaChanged();
}

void MediaShelf::close(int kind) {
    m_open.erase(kind);
    Q_EMIT m_events.mediaChanged();
}
