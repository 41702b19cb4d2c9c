#include "VisaLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

#include <algorithm>

namespace {

/// Of the library or program that this code is a part of.
QString ownFolder() {
    Dl_info info{};
    dladdr(reinterpret_cast<const void*>(&ownFolder), &info);
    return QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath();
}

/// A loader on its own may not look beside us.
QStringList usualFiles() {
    const QString name = QStringLiteral("visa64.dll");
    return {name, QDir(ownFolder()).filePath(name)};
}

template <typename Call>
bool find(QLibrary& library, const char* name, Call*& call) {
    call = reinterpret_cast<Call*>(library.resolve(name));
    return call != nullptr;
}

}  // namespace

VisaLibrary& VisaLibrary::instance() {
    static VisaLibrary library;
    return library;
}

bool VisaLibrary::load() {
    // The file alone may be loaded by somebody else.
    if (m_calls.clear != nullptr) {
        return true;
    }
    Calls calls;
    if (!loadFile() || !resolve(calls)) {
        unload();
        return false;
    }
    m_calls = calls;
    return true;
}

QStringList VisaLibrary::files() const {
    return m_files.isEmpty() ? usualFiles() : m_files;
}

bool VisaLibrary::loadFile() {
    const QStringList wanted = files();
    return std::any_of(wanted.begin(), wanted.end(), [this](const QString& file) {
        m_library.setFileName(file);
        return m_library.load();
    });
}

bool VisaLibrary::resolve(Calls& calls) {
    return find(m_library, "viOpenDefaultRM", calls.openDefaultRM) && find(m_library, "viOpen", calls.open) &&
           find(m_library, "viPrintf", calls.print) && find(m_library, "viScanf", calls.scan) &&
           find(m_library, "viClose", calls.close) && find(m_library, "viClear", calls.clear);
}

void VisaLibrary::unload() {
    m_calls = Calls();
    m_library.unload();
}
