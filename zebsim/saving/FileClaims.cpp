#include "saving/FileClaims.h"

#include "saving/FileError.h"

#include <QFile>
#include <QFileInfo>

bool FileClaims::claim(const QString& file) {
    QFile created(file);
    if (created.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        m_new = file;
        return true;
    }
    const QFileInfo old(file);
    if (!old.exists() && !old.isSymLink()) {
        throw FileError(file, created.errorString());
    }
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
