#include "MediumScripting.h"

#include "ByteText.h"
#include "ScenarioError.h"
#include "SimHost.h"

#include <QDir>
#include <QFile>
#include <QSet>

namespace {

const QString Filled = QStringLiteral("filled");
const QString In = QStringLiteral("in");

int kindOf(const QString& word) {
    const MediumKind* kind = mediumKind(word);
    if (kind == nullptr) {
        throw ScenarioError(QStringLiteral("no kind of medium is \"%1\", but %2").arg(word, mediumWords()));
    }
    return kind->kind;
}

RigMedium settingsOf(int kind, const QVariantMap& members, const QString& home) {
    RigMedium medium;
    medium.kind = kind;
    medium.name = members.value(QStringLiteral("name")).toString();
    medium.folder = QDir(home).absoluteFilePath(members.value(QStringLiteral("folder")).toString());
    medium.password = members.value(QStringLiteral("password")).toString();
    medium.isProtected = members.value(QStringLiteral("protected")).toBool();
    if (members.contains(QStringLiteral("capacity"))) {
        const auto bytes = bytesOf(members.value(QStringLiteral("capacity")).toString());
        if (!bytes) {
            throw ScenarioError(QStringLiteral("a capacity is a text as \"8 GB\""));
        }
        medium.capacity = *bytes;
    }
    return medium;
}

/// By one file, which takes no room on the disk.
void fill(const Medium& medium, double part) {
    QFile file(QDir(medium.folder()).filePath(QStringLiteral("filled.dat")));
    file.remove();
    const zeb::MediumUse use = medium.use();
    const auto bytes = qint64(part * double(use.capacity)) - use.used;
    if (!file.open(QIODevice::WriteOnly) || !file.resize(qMax<qint64>(bytes, 0))) {
        throw ScenarioError(file.fileName() % QStringLiteral(": ") % file.errorString());
    }
}

QVariantMap plain(const Medium& medium, bool isOpen) {
    const zeb::MediumUse use = medium.use();
    return {{QStringLiteral("name"), medium.name()},
            {QStringLiteral("open"), isOpen},
            {QStringLiteral("locked"), medium.isLocked()},
            {QStringLiteral("protected"), medium.isProtected()},
            {QStringLiteral("capacity"), double(use.capacity)},
            {QStringLiteral("used"), double(use.used)},
            {QStringLiteral("recordings"), medium.recordings().size()}};
}

void checkMembers(const QVariantMap& members) {
    static const QSet<QString> known = {QStringLiteral("name"),
                                        QStringLiteral("folder"),
                                        QStringLiteral("capacity"),
                                        QStringLiteral("password"),
                                        QStringLiteral("protected"),
                                        Filled,
                                        In};
    for (auto member = members.keyBegin(); member != members.keyEnd(); ++member) {
        if (!known.contains(*member)) {
            throw ScenarioError(QStringLiteral("a medium has no member %1").arg(*member));
        }
    }
}

}  // namespace

QVariant MediumScripting::medium(const QString& kind, const QVariantMap& members) {
    checkMembers(members);
    MediaShelf& shelf = m_host.shelf();
    const int number = kindOf(kind);
    MediaShelf::Held held = shelf.find(number, members.value(QStringLiteral("name")).toString());
    if (!members.value(In, true).toBool()) {
        if (held) {
            shelf.pullOut(held);
        }
        return {};
    }
    if (held && members.contains(QStringLiteral("folder"))) {
        shelf.pullOut(held);
        held = nullptr;
    }
    if (!held && members.value(QStringLiteral("folder")).toString().isEmpty()) {
        throw ScenarioError(QStringLiteral("a medium that is put in needs a folder"));
    }
    for (const char* member : {"capacity", "password", "protected"}) {
        if (held && members.contains(QLatin1String(member))) {
            throw ScenarioError(QStringLiteral("%1 of a medium that is in needs its folder: it is put in anew")
                                    .arg(QLatin1String(member)));
        }
    }
    try {
        held = held ? held : shelf.putIn(settingsOf(number, members, m_folder));
    } catch (const ScenarioError&) {
        throw;
    } catch (const std::exception& e) {
        throw ScenarioError(QString::fromUtf8(e.what()));
    }
    if (members.contains(Filled)) {
        fill(*held, members.value(Filled).toDouble());
    }
    return plain(*held, shelf.open(number) == held);
}
