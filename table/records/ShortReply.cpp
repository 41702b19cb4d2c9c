#include "ShortReply.h"

#include "Record.h"

#include <utility>

namespace {

/// Lists that no camera has any more are told again with all others now and then, so that neither side keeps them.
constexpr int MostLists = 1000;
constexpr int ListsOfARow = 4;
/// Characters.
constexpr int UsualRow = 1000;

/// Numbers of replies and lists are never used twice, not by another table either.
int nextNumber() {
    static int last = 0;
    return ++last;
}

void appendItem(QString& items, const QString& item) {
    items += items.isEmpty() ? QLatin1String() : QLatin1String(",");
    items += item;
}

}  // namespace

ShortReply::ShortReply(PageRecords& page, int taken) : m_page(page) {
    if (taken == m_page.told.number) {
        m_page.taken = m_page.told;
    } else if (taken != m_page.taken.number) {
        m_page.taken = {};
    }
    if (m_page.taken.lists.size() > MostLists + ListsOfARow * m_page.taken.rows.size()) {
        m_page.taken = {};
    }
    m_known = m_page.taken;
    m_reply.lists = m_known.lists;
    m_reply.rows.reserve(m_known.rows.size());
    m_row.reserve(UsualRow);
}

void ShortReply::add(const Record& row) {
    const int place = m_reply.rows.size();
    const QString known = m_known.rows.value(place);
    shorten(row);
    if (m_row == known) {
        m_reply.rows.append(known);
    } else {
        m_reply.rows.append(QString(m_row.constData(), m_row.size()));
        appendItem(m_changed, m_row);
    }
}

void ShortReply::setBatch(const Record& row) {
    shorten(row);
    m_reply.batch = QString(m_row.constData(), m_row.size());
}

QString ShortReply::finish() {
    const bool sameBatch = m_reply.batch == m_known.batch;
    const bool same = sameBatch && m_changed.isEmpty() && m_reply.rows.size() == m_known.rows.size();
    m_reply.number = same && m_known.number > 0 ? m_known.number : nextNumber();
    QString json = QStringLiteral("{\"reply\":%1,\"since\":%2,\"count\":%3,\"lists\":{")
                       .arg(m_reply.number)
                       .arg(m_known.number)
                       .arg(m_reply.rows.size());
    json += m_newLists % QLatin1String("},\"changed\":[") % m_changed % QLatin1Char(']');
    json += sameBatch ? QString() : QString(QLatin1String(",\"batch\":[") % m_reply.batch % QLatin1Char(']'));
    json += QLatin1Char('}');
    m_page.told = std::move(m_reply);
    return json;
}

void ShortReply::shorten(const Record& row) {
    m_row.resize(0);
    row.appendTo(m_row, [this](const QString& list) -> const QString& { return numberOf(list); });
}

const QString& ShortReply::numberOf(const QString& list) {
    auto place = m_places.constFind(list.constData());
    if (place == m_places.constEnd()) {
        auto known = m_reply.lists.constFind(list);
        if (known == m_reply.lists.constEnd()) {
            known = m_reply.lists.insert(list, QString::number(nextNumber()));
            appendItem(m_newLists, QLatin1Char('"') % known.value() % QLatin1String("\":") % list);
        }
        place = m_places.insert(list.constData(), {list, known.value()});
    }
    return place->second;
}
