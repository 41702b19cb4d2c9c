#pragma once

#include <sys/resource.h>

#include <csignal>

/// No file can grow past `bytes` while it lives, as on a disk that is full by then.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }

private:
    rlimit m_before{};
    void (*m_signal)(int);
};
