#pragma once

#include <unistd.h>

/// Who may write where the permissions of files say so, while it lives: root may write everywhere.
class Unprivileged {
public:
    Unprivileged() : m_isRoot(geteuid() == 0 && seteuid(65534) == 0) {}
    ~Unprivileged() {
        if (m_isRoot && seteuid(0) != 0) {
            _exit(1);
        }
    }

private:
    bool m_isRoot;
};
