#pragma once

#include "ZebTypes.h"

#include <QHash>
#include <QRect>
#include <QSet>

/// Image tools: which are on, which is active, on which documents each is chosen, and the rectangles that they edit.
class ImageTools {
public:
    void setQuick(const QString& tool, bool on);
    void setActive(const QString& tool) { m_active = tool; }
    bool isActive(const QString& tool) const;

    /// On these documents.
    void choose(const QString& tool, const DocKeyList& keys, bool on);
    bool isChosen(const QString& tool, DOCKEY key) const;

    void setRect(const QString& tool, DOCKEY key, const QRect& rect);
    /// Null rectangle when there is none.
    QRect rect(const QString& tool, DOCKEY key) const;

    /// Nothing is known of any document any more.
    void forgetDocs();

private:
    QSet<QString> m_quick;
    QString m_active;
    QHash<QString, QSet<DOCKEY>> m_chosen;
    QHash<QString, QHash<DOCKEY, QRect>> m_rects;
};
