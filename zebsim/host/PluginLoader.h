#pragma once

#include <QLibrary>
#include <QString>

#include <memory>
#include <stdexcept>

class PLG_Interface;
class ZebHost;

/// A plug-in's library. Unloads it, and deletes the plug-in, when it goes. GUI thread.
class PluginLoader {
public:
    /// Loads the library, makes its plug-in and gives it the host. Throws `PluginError`.
    PluginLoader(const QString& path, ZebHost& host);
    ~PluginLoader();

    PLG_Interface& plugin() const { return *m_plugin; }

private:
    QLibrary m_library;
    std::unique_ptr<PLG_Interface> m_plugin;
};

/// A library that is no plug-in. The text names the file.
class PluginError : public std::runtime_error {
public:
    explicit PluginError(const QString& text) : std::runtime_error(text.toStdString()) {}
};
