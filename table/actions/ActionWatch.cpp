#include "ActionWatch.h"

#include "CameraAction.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "FailureText.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QStringList>

#include <algorithm>
#include <functional>

namespace {

const QLatin1String Separator(": ");
const CameraAction* const Moving[] = {&cameraaction::FrameRate, &cameraaction::Shutter, &cameraaction::ImageSize,
                                      &cameraaction::Trigger};

/// Answers nothing where the camera answers nothing.
template <typename Answer>
Answer answerOf(const std::function<Answer()>& ask) {
    try {
        return ask();
    } catch (...) {
        return {};
    }
}

QString withoutName(const QString& text, const QString& name) {
    const QString prefix = name % Separator;
    return text.startsWith(prefix) ? text.mid(prefix.size()) : text;
}

/// The line is of a camera of that name, with its address where others are called alike.
bool isOf(const QString& line, const QString& name) {
    return !name.isEmpty() && (line.startsWith(name % Separator) || line.startsWith(name % QLatin1String(" (")));
}

}  // namespace

ActionWatch::ActionWatch(ZebHost& host, const CameraAction& action, const DocKeyList& keys, const QString& asked)
    : m_host(host), m_action(action), m_asked(asked) {
    ZebDocManager& documents = host.docManager();
    const bool isAll = keys.isEmpty() && action.has(CameraAction::NoKeysMeanAll);
    for (const DOCKEY key : isAll ? documents.getConnectedDocKeys(0) : keys) {
        look(key);
    }
}

void ActionWatch::look(DOCKEY key) {
    DOC_Interface* doc = m_host.docManager().getDocAny(key);
    if (doc == nullptr) {
        return;
    }
    // One that does not tell counts as meant, and is asked again afterwards.
    bool isConnected = false;
    bool isMeant = true;
    try {
        isConnected = doc->isConnected();
        isMeant = !isConnected || m_action.isFor(*doc);
    } catch (...) {
        isConnected = !m_action.has(CameraAction::OfThoseOff);
    }
    if (!isMeant || isConnected == m_action.has(CameraAction::OfThoseOff)) {
        return;
    }
    Before before;
    before.key = key;
    before.name = answerOf<QString>([&] { return doc->control().getCameraName(1); });
    before.asked = textOf(m_action, m_host, *doc, m_asked);
    if (isConnected) {
        before.value = answerOf<QString>([&] { return m_action.read(*doc); });
        before.isLocked = m_action.heedsLock(m_host) && answerOf<bool>([&] { return doc->lock().isParamLocked(); });
        before.isLowLight = m_action.has(CameraAction::KeptByLowLight) &&
                            answerOf<bool>([&] { return doc->control().isLowLightMode(); });
        before.others = m_action.has(CameraAction::MovesOthers) ? othersOf(*doc) : Values();
    }
    m_before.append(before);
}

ActionWatch::Values ActionWatch::othersOf(DOC_Interface& doc) const {
    Values values;
    for (const CameraAction* other : Moving) {
        if (other != &m_action) {
            values.append({other, answerOf<QString>([&] { return other->text(m_host, doc, other->read(doc)); })});
        }
    }
    return values;
}

std::optional<ActionResult> ActionWatch::finish(const QString& failure, bool sent) const {
    const bool couldAsk =
        std::any_of(m_before.begin(), m_before.end(), [this](const Before& before) { return !before.isLocked; });
    if (m_before.isEmpty() || (!sent && couldAsk)) {
        return std::nullopt;
    }
    const QStringList lines = failure.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVector<ActionResult::Row> rows;
    for (const Before& before : m_before) {
        rows.append(rowOf(before, lines));
    }
    return ActionResult(QLatin1String(m_action.name), rows);
}

/// The name with which the line begins, the longest where one begins with another; empty for a line of nobody.
QString ActionWatch::ownerOf(const QString& line) const {
    QString owner;
    for (const Before& before : m_before) {
        if (before.name.size() > owner.size() && isOf(line, before.name)) {
            owner = before.name;
        }
    }
    return owner;
}

/// Its own lines, which those of one name share, else what was said of nobody in particular.
QString ActionWatch::reasonFor(const Before& before, const QStringList& lines) const {
    QStringList own;
    QStringList ofAll;
    for (const QString& line : lines) {
        const QString owner = ownerOf(line);
        if (owner.isEmpty()) {
            ofAll << line;
        } else if (owner == before.name) {
            own << withoutName(line, owner);
        }
    }
    return (own.isEmpty() ? ofAll : own).join(QLatin1Char(' '));
}

ActionResult::Row ActionWatch::rowOf(const Before& before, const QStringList& lines) const {
    ActionResult::Row row{before.key, before.name, before.asked, {}, {}, {}};
    DOC_Interface* doc = m_host.docManager().getDocAny(before.key);
    try {
        if (doc == nullptr || (!m_action.has(CameraAction::ReachesOff) && !doc->isConnected())) {
            row.verdict = QStringLiteral("gone");
            return row;
        }
        const QString got = m_action.read(*doc);
        row.got = m_action.text(m_host, *doc, got);
        const QString told = reasonFor(before, lines);
        row.verdict = verdictOf(before, got, !told.isEmpty());
        // Two may have one name, and only one of them the reason.
        const bool isAlone = std::count_if(m_before.begin(), m_before.end(),
                                           [&before](const Before& other) { return other.name == before.name; }) == 1;
        const bool isUnmoved = row.verdict == QLatin1String("set") ? isAlone : got == before.value;
        row.reason = row.verdict == QLatin1String("refused") && before.isLowLight
                         ? m_host.translate(TextKey("it is in low light mode"))
                     : isUnmoved ? told
                                 : QString();
        const QString moved = movedText(before, *doc);
        row.reason += row.reason.isEmpty() || moved.isEmpty() ? moved : QString(QLatin1String("; ") % moved);
    } catch (...) {
        row.verdict = QStringLiteral("unanswered");
        row.reason = withoutName(currentFailureText(), before.name);
    }
    return row;
}

/// `isTold`: the host has said something about it. Where it has not, a camera that stands where it stood has nothing
/// nearer.
QString ActionWatch::verdictOf(const Before& before, const QString& got, bool isTold) const {
    return got == m_asked                                                             ? QStringLiteral("set")
           : before.isLocked                                                          ? QStringLiteral("locked")
           : m_action.has(CameraAction::MayClamp) && (!isTold || got != before.value) ? QStringLiteral("clamped")
                                                                                      : QStringLiteral("refused");
}

QString ActionWatch::movedText(const Before& before, DOC_Interface& doc) const {
    const Values now = before.others.isEmpty() ? Values() : othersOf(doc);
    QStringList moved;
    for (int i = 0; i < now.size(); ++i) {
        if (now[i].second != before.others[i].second && !now[i].second.isEmpty()) {
            moved << m_host.translate(QLatin1String(now[i].first->label)) % QLatin1Char(' ') % before.others[i].second %
                         QStringLiteral(" → ") % now[i].second;
        }
    }
    return moved.join(QLatin1String(", "));
}
