#include "SimMedia.h"

#include "HostCalls.h"
#include "HostContext.h"
#include "Journal.h"
#include "TextKey.h"
#include "Translator.h"

#include <stdexcept>

void SimMedia::refuse(const QString& medium) const {
    const QString text = TextKey("%1 is not there any more.");
    throw std::runtime_error(m_host.translator.translate(text).arg(medium).toStdString());
}

QList<zeb::Medium> SimMedia::getMedia(int /*kind*/) const {
    m_host.calls.ask(OPERATION("getMedia"));
    return {};
}

bool SimMedia::getOpenMedium(int /*kind*/, zeb::Medium& /*out*/) const {
    m_host.calls.ask(OPERATION("getOpenMedium"));
    return false;
}

void SimMedia::openMedium(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::openMedium"), {kind, medium.name});
    refuse(medium.name);
}

void SimMedia::openSdDrive(int drive) {
    m_host.calls.change(OPERATION("ZebDocManager::openSdDrive"), {drive});
    refuse(QChar('A' + drive) % QStringLiteral(":"));
}

void SimMedia::closeMedium(int kind) {
    m_host.calls.change(OPERATION("ZebMedia::closeMedium"), {kind});
}

bool SimMedia::formatMedium(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::formatMedium"), {kind, medium.name});
    return false;
}

zeb::MediumUse SimMedia::getMediumUse(int /*kind*/, const zeb::Medium& /*medium*/) const {
    m_host.calls.ask(OPERATION("getMediumUse"));
    return {};
}

bool SimMedia::isMediumLocked(int /*kind*/, const zeb::Medium& /*medium*/) const {
    m_host.calls.ask(OPERATION("isMediumLocked"));
    return false;
}

bool SimMedia::hasMediumPassword(int /*kind*/, const zeb::Medium& /*medium*/) const {
    m_host.calls.ask(OPERATION("hasMediumPassword"));
    return false;
}

bool SimMedia::unlockMedium(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::unlockMedium"), {kind, medium.name});
    return false;
}

std::optional<bool> SimMedia::setMediumPassword(int kind, const zeb::Medium& medium) {
    m_host.calls.change(OPERATION("ZebMedia::setMediumPassword"), {kind, medium.name});
    return false;
}

void SimMedia::importDocs(const DocKeyList& keys) {
    m_host.calls.change(OPERATION("ZebMedia::importDocs"), {Journal::keyList(keys)});
}

void SimMedia::openFiles(const QStringList& paths) {
    m_host.calls.change(OPERATION("ZebMedia::openFiles"), {paths});
    if (!paths.isEmpty()) {
        refuse(paths.first());
    }
}

void SimMedia::checkSaved(const QVariantList& records, const QString& folder) {
    m_host.calls.change(OPERATION("ZebMedia::checkSaved"), {QVariant(records), folder});
}
