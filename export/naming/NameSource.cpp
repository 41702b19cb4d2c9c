#include "NameSource.h"

#include <QDebug>

#include <algorithm>

bool NameSource::hasFile(const QString& folder, const QString& beginning) const {
    auto names = m_listed.find(folder);
    if (names == m_listed.end()) {
        names = m_listed.insert(folder, fileNames(folder));
        std::sort(names->begin(), names->end());
    }
    const auto first = std::lower_bound(names->cbegin(), names->cend(), beginning);
    return first != names->cend() && first->startsWith(beginning);
}

void NameSource::noteTaken(const QString& what) const {
    qWarning() << "exists" << what;
}
