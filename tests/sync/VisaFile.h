#pragma once

#include <QLibrary>
#include <QStringList>

/// The scripted VISA library, in the place of the usual one while this lives. It begins as a good instrument that is
/// not open.
class VisaFile {
public:
    VisaFile();
    ~VisaFile();
    Q_DISABLE_COPY(VisaFile)

    /// Throws `std::runtime_error` when the library does not understand it.
    void script(const QByteArray& json);
    /// Calls since the last asking.
    QStringList journal();
    void release();

private:
    template <typename Function>
    Function* function(const char* name);

    QLibrary m_library;
};
