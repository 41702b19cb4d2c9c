#pragma once

#include <QLibrary>
#include <QStringList>

#include <cstdint>

extern "C" {
/// The six calls of VISA. They answer a status: 0 for success, above it a warning, below it an error.
using ViOpenDefaultRM = std::int32_t(std::uint32_t* manager);
using ViOpen = std::int32_t(std::uint32_t manager, const char* resource, std::uint32_t mode, std::uint32_t timeout,
                            std::uint32_t* session);
using ViPrintf = std::int32_t(std::uint32_t session, const char* format, ...);
using ViScanf = std::int32_t(std::uint32_t session, const char* format, ...);
using ViClose = std::int32_t(std::uint32_t object);
using ViClear = std::int32_t(std::uint32_t session);
}

/// The VISA library, and what is open in it: one for the whole program. It is loaded at run time.
///
/// No lock: the thread that opens the instrument works while nobody else calls, and all else is the GUI thread's.
class VisaLibrary {
public:
    /// Where the calls go; null while no library is loaded.
    struct Calls {
        ViOpenDefaultRM* openDefaultRM = nullptr;
        ViOpen* open = nullptr;
        ViPrintf* print = nullptr;
        ViScanf* scan = nullptr;
        ViClose* close = nullptr;
        ViClear* clear = nullptr;
    };

    static VisaLibrary& instance();

    /// True when it is loaded now, or was already. Nothing stays loaded when a call is missing.
    bool load();
    void unload();
    const Calls& calls() const { return m_calls; }

    /// What `load` tries, in that order: a plain name is the system's to find.
    QStringList files() const;
    /// Files to try in place of the usual ones, for tests; empty for the usual ones.
    void setFiles(const QStringList& files) { m_files = files; }

    /// The open resource manager and instrument; 0 for none.
    std::uint32_t manager = 0;
    std::uint32_t session = 0;
    /// What the last call has answered.
    std::int32_t status = 0;

private:
    VisaLibrary() = default;
    bool loadFile();
    bool resolve(Calls& calls);

    QStringList m_files;
    QLibrary m_library;
    Calls m_calls;
};
