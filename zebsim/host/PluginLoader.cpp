#include "PluginLoader.h"

#include "PLG_Interface.h"

#include <QFileInfo>

PluginLoader::PluginLoader(const QString& path, ZebHost& host) : m_library(QFileInfo(path).absoluteFilePath()) {
    // A library that lacks something fails here, with a text, and not at a user's click.
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!m_library.load()) {
        throw PluginError(QStringLiteral("%1: %2").arg(path, m_library.errorString()));
    }
    using Maker = PLG_Interface* (*)();
    const auto make = reinterpret_cast<Maker>(m_library.resolve("makeButtonPlugin"));
    if (make) {
        m_plugin.reset(make());
    }
    if (!m_plugin) {
        m_library.unload();
        throw PluginError(path % (make ? QStringLiteral(": makeButtonPlugin made no plug-in")
                                       : QStringLiteral(": no plug-in, it exports no makeButtonPlugin")));
    }
    m_plugin->setHost(&host);
}

PluginLoader::~PluginLoader() {
    m_plugin.reset();
    m_library.unload();
}
