#include "ScriptedVisaLoader.h"

#include <QCoreApplication>
#include <QDir>

#include <dlfcn.h>

namespace {

QString libraryPath() {
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("scripted/visa64.dll"));
}

}  // namespace

ScriptedVisaLoader::ScriptedVisaLoader() : m_library(libraryPath()) {}

int ScriptedVisaLoader::signal() {
    static const QByteArray path = QFile::encodeName(libraryPath());
    // To load it here would bring a generator that nobody has.
    void* library = dlopen(path.constData(), RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) {
        return -1;
    }
    const auto signalOf = reinterpret_cast<int (*)()>(dlsym(library, "visaSignal"));
    const int hertz = signalOf != nullptr ? signalOf() : -1;
    dlclose(library);
    return hertz;
}
