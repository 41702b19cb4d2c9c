#include "SimMedia.h"

#include "HostCalls.h"
#include "HostEvents.h"
#include "HostMessages.h"
#include "HostWindows.h"
#include "Journal.h"
#include "SimDocManager.h"
#include "TextKey.h"
#include "Translator.h"
#include "UpdateCycle.h"

#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>
#include <QtDebug>

#include <stdexcept>

namespace {

constexpr int LookMs = 1000;

}  // namespace

SimMedia::SimMedia(const HostContext& host) : m_host(host), m_docs(host) {
    QObject::connect(&host.events, &HostEvents::openMediumGone, &m_watch, [this](int kind, const QString& name) {
        m_docs.close(kind);
        const QString text = TextKey("%1 was pulled out. Its recordings are closed.");
        m_host.messages.notify(Message::Warn, m_host.translator.translate(text).arg(name));
    });
    QObject::connect(&host.events, &HostEvents::mediaChanged, &m_watch, [this] { m_host.updates.request(); });
    QObject::connect(&host.events, &HostEvents::updateFinished, &m_watch, [this] { m_host.shelf.lookAround(); });
    QObject::connect(&m_look, &QTimer::timeout, &m_watch, [this] { m_host.shelf.lookAround(); });
    m_look.start(LookMs);
}

void SimMedia::refuse(const QString& text, const QString& medium) const {
    throw std::runtime_error(m_host.translator.translate(text).arg(medium).toStdString());
}

MediaShelf::Held SimMedia::there(int kind, const zeb::Medium& medium) const {
    MediaShelf::Held held = m_host.shelf.find(kind, medium);
    if (!held) {
        // Whoever lost it may know no more than its place.
        const QString text = m_host.translator.translate(mediumKinds().at(std::size_t(kind)).text);
        const QString place = QStringLiteral("%1 %2").arg(text).arg(medium.drive);
        refuse(TextKey("%1 is not there any more."), medium.name.isEmpty() ? place : medium.name);
    }
    return held;
}

void SimMedia::checkThere(const MediaShelf::Held& medium) const {
    if (!medium->isThere()) {
        refuse(TextKey("%1 is not there any more."), medium->name());
    }
}

QList<zeb::Medium> SimMedia::getMedia(int kind) const {
    m_host.calls.ask(OPERATION("getMedia"));
    QList<zeb::Medium> media;
    for (const MediaShelf::Held& medium : m_host.shelf.media(kind)) {
        media.append(medium->place());
    }
    return media;
}

bool SimMedia::getOpenMedium(int kind, zeb::Medium& out) const {
    m_host.calls.ask(OPERATION("getOpenMedium"));
    const MediaShelf::Held open = m_host.shelf.open(kind);
    out = open ? open->place() : out;
    return open != nullptr;
}

void SimMedia::openMedium(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::openMedium"), {kind, medium.name});
    const MediaShelf::Held held = there(kind, medium);
    if (held->isLocked()) {
        refuse(TextKey("%1 is locked by a password."), held->name());
    }
    open(held);
}

unsigned int SimMedia::sdDriveMask() const {
    unsigned int mask = 0;
    for (const MediaShelf::Held& card : m_host.shelf.media(RigMedium::SdCard)) {
        mask |= 1U << unsigned(card->place().drive);
    }
    return mask;
}

bool SimMedia::getOpenSdDrive(int& drive) const {
    const MediaShelf::Held open = m_host.shelf.open(RigMedium::SdCard);
    drive = open ? open->place().drive : drive;
    return open != nullptr;
}

void SimMedia::openSdDrive(int drive) {
    m_host.calls.change(OPERATION("ZebDocManager::openSdDrive"), {drive});
    const MediaShelf::Held card = there(RigMedium::SdCard, {RigMedium::SdCard, drive, 0, zeb::driveLetter(drive)});
    if (!card->isLocked() || unlock(card)) {
        open(card);
    }
}

void SimMedia::closeMedium(int kind) {
    m_host.calls.change(OPERATION("ZebMedia::closeMedium"), {kind});
    close(kind);
}

void SimMedia::close(int kind) {
    if (m_host.shelf.open(kind)) {
        m_docs.close(kind);
        m_host.shelf.close(kind);
    }
}

bool SimMedia::formatMedium(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::formatMedium"), {kind, medium.name});
    const MediaShelf::Held held = there(kind, medium);
    if (!held->kindOf().isFormattable) {
        refuse(TextKey("%1 is formatted in its camera."), held->name());
    }
    if (held->isProtected()) {
        refuse(TextKey("%1 is write protected."), held->name());
    }
    if (held->isLocked()) {
        refuse(TextKey("%1 is locked by a password."), held->name());
    }
    if (m_host.shelf.open(kind) == held) {
        close(kind);
    }
    const qint64 used = held->use().used;
    const QString text = m_host.translator.translate(TextKey("Formatting %1...")).arg(held->name());
    QFutureWatcher<bool> work;
    work.setFuture(QtConcurrent::run([held] { return held->erase(); }));
    m_host.docs.endTurn();
    m_host.windows->runProgress(text, work);
    work.waitForFinished();
    m_host.updates.request();
    checkThere(held);
    held->noteErased(used - held->use().used);
    if (!work.result()) {
        qWarning().noquote() << held->name() << "was not erased whole";
    }
    return work.result();
}

zeb::MediumUse SimMedia::getMediumUse(int kind, const zeb::Medium& medium) const {
    m_host.calls.ask(OPERATION("getMediumUse"));
    const MediaShelf::Held held = m_host.shelf.find(kind, medium);
    return held ? held->use() : zeb::MediumUse();
}

bool SimMedia::isMediumLocked(int kind, const zeb::Medium& medium) const {
    m_host.calls.ask(OPERATION("isMediumLocked"));
    const MediaShelf::Held held = m_host.shelf.find(kind, medium);
    return held && held->isLocked();
}

bool SimMedia::hasMediumPassword(int kind, const zeb::Medium& medium) const {
    m_host.calls.ask(OPERATION("hasMediumPassword"));
    const MediaShelf::Held held = m_host.shelf.find(kind, medium);
    return held && held->hasPassword();
}

bool SimMedia::unlockMedium(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::unlockMedium"), {kind, medium.name});
    return unlock(there(kind, medium));
}

bool SimMedia::unlock(const MediaShelf::Held& medium) {
    m_host.docs.endTurn();
    const auto fits = [medium](const QString& password) { return medium->fits(password); };
    if (!m_host.windows->askPassword(medium->name(), fits)) {
        return false;
    }
    checkThere(medium);
    medium->unlock();
    m_host.updates.request();
    return true;
}

std::optional<bool> SimMedia::setMediumPassword(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::setMediumPassword"), {kind, medium.name});
    const MediaShelf::Held held = there(kind, medium);
    m_host.docs.endTurn();
    HostWindows::PasswordTest fits;
    if (held->hasPassword()) {
        fits = [held](const QString& password) { return held->fits(password); };
    }
    const std::optional<QString> password = m_host.windows->askNewPassword(held->name(), fits);
    if (!password) {
        return std::nullopt;
    }
    checkThere(held);
    try {
        held->setPassword(*password);
    } catch (const std::exception& e) {
        qWarning().noquote() << e.what();
        return false;
    }
    m_host.updates.request();
    return true;
}

void SimMedia::open(const MediaShelf::Held& medium) {
    close(medium->kind());
    m_host.shelf.setOpen(medium);
    m_docs.open(medium);
    // It may have gone meanwhile.
    m_host.shelf.lookAround();
}

void SimMedia::importDocs(const DocKeyList& keys) {
    m_host.calls.change(OPERATION("ZebMedia::importDocs"), {Journal::keyList(keys)});
    m_host.windows->importRecordings(keys);
}

void SimMedia::openFiles(const QStringList& paths) {
    m_host.calls.change(OPERATION("ZebMedia::openFiles"), {paths});
    m_host.docs.files().openAndShow(paths);
}

void SimMedia::checkSaved(const QVariantList& records, const QString& folder) {
    m_host.calls.change(OPERATION("ZebMedia::checkSaved"), {QVariant(records), folder});
    m_docs.checkSaved(records, folder);
}
