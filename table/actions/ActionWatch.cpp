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

/// What the host has said to that camera.
QString reasonIn(const QStringList& lines, const QString& name) {
    for (const QString& line : lines) {
        if (!name.isEmpty() && line.startsWith(name % Separator)) {
            return withoutName(line, name);
        }
    }
    return {};
}

}  // namespace

ActionWatch::ActionWatch(ZebHost& host, const CameraAction& action, const DocKeyList& keys, const QString& asked)
    : m_host(host), m_action(action), m_asked(asked) {
    ZebDocManager& documents = host.docManager();
    const DocKeyList all = keys.isEmpty() ? documents.getConnectedDocKeys(0) : keys;
    for (const DOCKEY key : all) {
        look(key);
    }
}

void ActionWatch::look(DOCKEY key) {
    DOC_Interface* doc = m_host.docManager().getDocAny(key);
    if (doc == nullptr) {
        return;
    }
    // One that does not tell is asked again afterwards.
    const bool isConnected = answerOf<bool>([&] { return doc->isConnected(); });
    const bool isMeant = &m_action == &cameraaction::Connect ? !isConnected : isConnected;
    if (!isMeant) {
        return;
    }
    Before before;
    before.key = key;
    before.name = answerOf<QString>([&] { return doc->control().getCameraName(1); });
    before.asked = textOf(m_action, m_host, *doc, m_asked);
    if (isConnected) {
        before.isLocked = answerOf<bool>([&] { return doc->lock().isParamLocked(); });
        before.isLowLight = answerOf<bool>([&] { return doc->control().isLowLightMode(); });
        before.others = m_action.movesOthers ? othersOf(*doc) : Values();
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
    const QStringList lines = failure.split(QLatin1Char('\n'));
    ActionResult result{QLatin1String(m_action.name), {}};
    for (const Before& before : m_before) {
        if (sent || (m_action.isKeptByLock && before.isLocked)) {
            result.rows.append(rowOf(before, lines));
        }
    }
    return result.rows.isEmpty() ? std::nullopt : std::optional(result);
}

ActionResult::Row ActionWatch::rowOf(const Before& before, const QStringList& lines) const {
    ActionResult::Row row{before.key, before.name, before.asked, {}, {}, reasonIn(lines, before.name)};
    DOC_Interface* doc = m_host.docManager().getDocAny(before.key);
    try {
        if (doc == nullptr || (!m_action.reachesOff && !doc->isConnected())) {
            row.verdict = QStringLiteral("gone");
            return row;
        }
        const QString got = m_action.read(*doc);
        row.got = m_action.text(m_host, *doc, got);
        row.verdict = verdictOf(before, got, row.reason);
        if (row.verdict != QLatin1String("set") && &m_action == &cameraaction::Lock && before.isLowLight) {
            row.reason = m_host.translate(TextKey("it is in low light mode"));
        }
        const QString moved = movedText(before, *doc);
        row.reason += row.reason.isEmpty() || moved.isEmpty() ? moved : QString(QLatin1String("; ") % moved);
    } catch (...) {
        row.verdict = QStringLiteral("unanswered");
        row.reason = withoutName(currentFailureText(), before.name);
    }
    return row;
}

QString ActionWatch::verdictOf(const Before& before, const QString& got, const QString& reason) const {
    return got == m_asked                             ? QStringLiteral("set")
           : m_action.isKeptByLock && before.isLocked ? QStringLiteral("locked")
           : reason.isEmpty() && m_action.mayClamp    ? QStringLiteral("clamped")
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
