#pragma once

#include "CustomInfoDialect.h"

#include <QList>
#include <QString>
#include <QVariantMap>

class QStringRef;
class QXmlStreamAttributes;

/// Makes items of the elements of a file, whichever of the two forms they are of.
///
/// The text of an element is that of a DOM: texts and CDATA of all that is inside, without texts of blanks alone. A
/// text ends at whatever is no text.
class ItemCollector {
public:
    explicit ItemCollector(const CustomInfoDialect& dialect) : m_dialect(dialect) {}

    void startElement(const QString& name, const QXmlStreamAttributes& attributes);
    void endElement();
    void addText(const QStringRef& text);
    void addCData(const QStringRef& text);
    void endText();

    int depth() const { return m_depth; }
    const QList<QVariantMap>& items() const { return m_items; }

private:
    /// What a child of the root is.
    enum class Section { Other, Items, JobItem };

    Section sectionOf(const QString& name) const;
    void endField();
    void endItem();

    const CustomInfoDialect& m_dialect;
    QList<QVariantMap> m_items;
    int m_depth = 0;
    bool m_isJob = false;
    Section m_section = Section::Other;
    bool m_inItem = false;
    QVariantMap m_item;
    /// In lower case.
    QString m_field;
    /// Of the field, or of the job item.
    QString m_text;
    /// The text that has not ended.
    QString m_run;
};
