#pragma once

#include <QString>

/// Calls to the one instrument that is open over VISA. Texts travel as UTF-8. `open` may run on a worker while nobody
/// else calls; the rest is the GUI thread's.
namespace vi {

/// False, with a line in the log, when the instrument can't be reached.
bool open(const QString& resource);
/// What fails is a line in the log.
void close();
/// Makes the instrument forget half-done input and output. Throws `std::runtime_error`.
void clear();
/// Sends a command as it stands, line feed and all. It must not hold a percent sign. Throws `std::runtime_error`.
void sendCommandString(const QString& command);
/// The next reply, as it comes and cut at 1024 bytes. Throws `std::runtime_error`.
QString recvString();

}  // namespace vi
