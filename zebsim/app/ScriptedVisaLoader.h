#pragma once

#include <QLibrary>

/// The VISA library that ships: a scripted generator in place of one on the network. Once it is loaded, whoever looks
/// for a VISA library by its plain name finds this one. GUI thread.
class ScriptedVisaLoader {
public:
    ScriptedVisaLoader();

    /// Stays loaded for as long as the program runs. False when it can't be; see `errorString`.
    bool load() { return m_library.load(); }
    QString errorString() const { return m_library.errorString(); }
    /// Null when the library has no such function.
    QFunctionPointer resolve(const char* name) { return m_library.resolve(name); }

    /// Hertz of the signal that the generator makes, 0 for none; -1 while nobody has loaded the library.
    static int signal();

private:
    QLibrary m_library;
};
