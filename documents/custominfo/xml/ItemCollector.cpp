#include "ItemCollector.h"

#include <QXmlStreamAttributes>

namespace {

/// Depths of elements, the root being 1.
constexpr int SectionDepth = 2;
constexpr int ItemDepth = 3;
constexpr int FieldDepth = 4;

/// What job files call by another name.
QString knownName(const QString& name) {
    static const QHash<QString, QString> names{{QStringLiteral("Sf_TestCode"), QStringLiteral("TestNo")},
                                               {QStringLiteral("Cm_TestDate"), QStringLiteral("Date")},
                                               {QStringLiteral("Cm_ProjectCode"), QStringLiteral("Project")},
                                               {QStringLiteral("Cm_PlannerName"), QStringLiteral("Engineer")},
                                               {QStringLiteral("Cm_TestPerson"), QStringLiteral("Technician")},
                                               {QStringLiteral("Cm_Comment"), QStringLiteral("Comments")}};
    return names.value(name, name);
}

bool isTrue(const QString& text) {
    return text == QLatin1String("true");
}

}  // namespace

ItemCollector::Section ItemCollector::sectionOf(const QString& name) const {
    if (name == QLatin1String("customItems") && !(m_isJob && m_dialect.rootDecides)) {
        return Section::Items;
    }
    return m_isJob ? Section::JobItem : Section::Other;
}

void ItemCollector::startElement(const QString& name, const QXmlStreamAttributes& attributes) {
    endText();
    ++m_depth;
    if (m_depth == 1) {
        m_isJob = name.toLower() == QLatin1String("job");
    } else if (m_depth == SectionDepth) {
        m_section = sectionOf(name);
        if (m_section == Section::JobItem) {
            const QString shown = QStringLiteral("display");
            m_item = {{QStringLiteral("name"), knownName(name)},
                      {QStringLiteral("unit"), attributes.value(QLatin1String("unit")).toString()},
                      {QLatin1String(m_dialect.shownKey),
                       !attributes.hasAttribute(shown) || isTrue(attributes.value(shown).toString())}};
            m_text.clear();
        }
    } else if (m_depth == ItemDepth && m_section == Section::Items) {
        m_inItem = name == QLatin1String("customItem");
        m_item.clear();
    } else if (m_depth == FieldDepth && m_inItem) {
        m_field = name.toLower();
        m_text.clear();
    }
}

void ItemCollector::endElement() {
    endText();
    if (m_depth == FieldDepth && m_inItem) {
        endField();
    } else if (m_depth == ItemDepth && m_inItem) {
        m_inItem = false;
        endItem();
    } else if (m_depth == SectionDepth && m_section == Section::JobItem) {
        m_item.insert(QStringLiteral("value"), m_text);
        endItem();
    }
    --m_depth;
}

void ItemCollector::endField() {
    if (m_field == QLatin1String("name")) {
        m_item.insert(m_field, knownName(m_text));
    } else if (m_field == QLatin1String("value") || m_field == QLatin1String("unit")) {
        m_item.insert(m_field, m_text);
    } else if (m_field == QLatin1String("display")) {
        m_item.insert(QLatin1String(m_dialect.shownKey), isTrue(m_text));
    } else if (m_field == QLatin1String("usefilename") && m_dialect.readsFileNameFlag) {
        m_item.insert(m_field, isTrue(m_text));
    }
}

void ItemCollector::endItem() {
    if (m_item.contains(QStringLiteral("name"))) {
        m_items.append(m_item);
    }
}

void ItemCollector::addText(const QStringRef& text) {
    m_run += text;
}

void ItemCollector::addCData(const QStringRef& text) {
    endText();
    m_text += text;
}

void ItemCollector::endText() {
    if (!m_run.trimmed().isEmpty()) {
        m_text += m_run;
    }
    m_run.clear();
}
