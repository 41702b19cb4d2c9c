#include "ImageTools.h"

namespace {

template <typename T>
void setMember(QSet<T>& set, const T& member, bool on) {
    if (on) {
        set.insert(member);
    } else {
        set.remove(member);
    }
}

}  // namespace

void ImageTools::setQuick(const QString& tool, bool on) {
    setMember(m_quick, tool, on);
}

bool ImageTools::isActive(const QString& tool) const {
    return m_active == tool || m_quick.contains(tool);
}

void ImageTools::choose(const QString& tool, const DocKeyList& keys, bool on) {
    for (const DOCKEY key : keys) {
        setMember(m_chosen[tool], key, on);
    }
}

bool ImageTools::isChosen(const QString& tool, DOCKEY key) const {
    return m_chosen.value(tool).contains(key);
}

void ImageTools::setRect(const QString& tool, DOCKEY key, const QRect& rect) {
    m_rects[tool][key] = rect;
}

QRect ImageTools::rect(const QString& tool, DOCKEY key) const {
    return m_rects.value(tool).value(key);
}

void ImageTools::forgetDocs() {
    m_chosen.clear();
    m_rects.clear();
}
