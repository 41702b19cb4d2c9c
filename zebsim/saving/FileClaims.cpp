#include "FileClaims.h"

#include "FileError.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool isThere(const QFileInfo& file) {
    return file.exists() || file.isSymLink();
}

}  // namespace

bool FileClaims::promise(const QString& file) {
    if (isThere(QFileInfo(file))) {
        if (!mayReplace(file)) {
            return false;
        }
        m_promised = file;
    }
    return true;
}

bool FileClaims::claim(const QString& file) {
    QFile created(file);
    if (created.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        m_new = file;
        return true;
    }
    if (!isThere(QFileInfo(file))) {
        throw FileError(file, created.errorString());
    }
    return file == m_promised || mayReplace(file);
}

bool FileClaims::mayReplace(const QString& file) {
    if (m_all) {
        return true;
    }
    const Overwrite answer = m_ask(file);
    m_all = answer == Overwrite::All;
    m_cancelled = answer == Overwrite::Cancel;
    return m_all || answer == Overwrite::This;
}

void FileClaims::release() {
    if (!m_new.isEmpty()) {
        QFile::remove(m_new);
        m_new.clear();
    }
}
