#include "EncoderProcess.h"

#include "StopSource.h"
#include "TextKey.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <vector>

namespace {

constexpr int LookAgainMs = 10;

QString textIn(int descriptor) {
    QFile file;
    file.open(descriptor, QIODevice::ReadOnly);
    file.seek(0);
    return QString::fromLocal8Bit(file.readAll()).trimmed();
}

}  // namespace

EncoderProcess::EncoderProcess(const QString& program, const QStringList& arguments, const StopSource& stop,
                               std::chrono::seconds limit)
    : m_stop(stop),
      m_latest(std::chrono::steady_clock::now() + limit),
      m_answer(::memfd_create("answer", MFD_CLOEXEC)),
      m_said(::memfd_create("said", MFD_CLOEXEC)) {
    // A socket, for a pipe that nobody reads any more would end this program.
    int ends[2] = {-1, -1};
    if (m_answer < 0 || m_said < 0 || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        m_error = errno;
        return;
    }
    m_input = ends[0];
    start(program, arguments, ends[1]);
    ::close(ends[1]);
}

EncoderProcess::~EncoderProcess() {
    if (m_id > 0) {
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
    }
    ::close(m_input);
    ::close(m_answer);
    ::close(m_said);
}

void EncoderProcess::start(const QString& program, const QStringList& arguments, int input) {
    std::vector<QByteArray> words{QFile::encodeName(program)};
    for (const QString& argument : arguments) {
        words.push_back(argument.toLocal8Bit());
    }
    std::vector<char*> list(words.size() + 1, nullptr);
    std::transform(words.begin(), words.end(), list.begin(), [](QByteArray& word) { return word.data(); });
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, m_answer, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, m_said, STDERR_FILENO);
    m_error = ::posix_spawn(&m_id, list.front(), &actions, nullptr, list.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (m_error != 0) {
        m_id = -1;
    }
}

bool EncoderProcess::write(const char* bytes, qint64 size) {
    for (qint64 done = 0; done < size;) {
        const ssize_t sent =
            m_id < 0 ? -1 : ::send(m_input, bytes + done, std::size_t(size - done), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent >= 0) {
            done += sent;
        } else if (m_id < 0 || (errno != EAGAIN && errno != EINTR) || isGivenUp()) {
            return false;
        } else {
            pollfd room{m_input, POLLOUT, 0};
            ::poll(&room, 1, LookAgainMs);
        }
    }
    return true;
}

bool EncoderProcess::finish() {
    ::shutdown(m_input, SHUT_WR);
    int status = 0;
    while (m_id > 0 && !isGivenUp()) {
        if (::waitpid(m_id, &status, WNOHANG) != 0) {
            m_id = -1;
            return WIFEXITED(status) && WEXITSTATUS(status) == 0 && said().isEmpty();
        }
        ::poll(nullptr, 0, LookAgainMs);
    }
    return false;
}

bool EncoderProcess::isLate() const {
    return std::chrono::steady_clock::now() > m_latest;
}

bool EncoderProcess::isGivenUp() const {
    return m_stop.isStopped() || isLate();
}

QString EncoderProcess::said() const {
    return textIn(m_said);
}

QString EncoderProcess::answer() const {
    return textIn(m_answer);
}

QString EncoderProcess::complaint() const {
    // What stands before it is a path that only the two programs know.
    const QString line = said().section(QLatin1Char('\n'), -1).section(QStringLiteral(": "), -1);
    return !line.isEmpty() ? line
           : m_error != 0  ? qt_error_string(m_error)
                           : TextKey("the program that makes videos has failed");
}
