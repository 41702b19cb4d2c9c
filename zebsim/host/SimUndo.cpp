#include "SimUndo.h"

#include "Camera.h"
#include "CameraBank.h"
#include "HostCalls.h"
#include "HostContext.h"
#include "HostEvents.h"
#include "HostMessages.h"
#include "LoadTexts.h"
#include "SettingsBatch.h"
#include "SimAppStatus.h"
#include "TextKey.h"
#include "Translator.h"
#include "UpdateCycle.h"

#include <QSet>
#include <QtDebug>

#include <algorithm>

namespace {

constexpr int MostSteps = 100;
const QString LowLight = QStringLiteral("lowLight");

bool isTool(const QString& text) {
    return text.isEmpty();
}

/// Those of `settings` that are others in `others`.
QVariantMap differing(const QVariantMap& settings, const QVariantMap& others) {
    QVariantMap differing;
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        if (*setting != others.value(setting.key())) {
            differing.insert(setting.key(), *setting);
        }
    }
    return differing;
}

template <typename Change>
const Change* find(const QList<Change>& changes, const PlanCamera& camera) {
    const auto found = std::find_if(changes.begin(), changes.end(), [&camera](const Change& change) {
        return change.address == camera.address && change.head == camera.head;
    });
    return found == changes.end() ? nullptr : &*found;
}

template <typename Step>
void removeTools(QList<Step>& steps) {
    steps.erase(std::remove_if(steps.begin(), steps.end(), [](const Step& step) { return isTool(step.text); }),
                steps.end());
}

}  // namespace

SimUndo::SimUndo(const HostContext& host) : m_host(host) {
    QObject::connect(&host.events, &HostEvents::camerasReplaced, &host.events, [this] {
        m_undo.clear();
        m_redo.clear();
        m_found.clear();
    });
}

void SimUndo::clear() {
    m_host.calls.change(OPERATION("ZebUndo::clear"));
    removeTools(m_undo);
    removeTools(m_redo);
}

void SimUndo::beginMacro(const QString& text) {
    m_host.calls.change(OPERATION("ZebUndo::beginMacro"), {text});
    if (m_depth++ == 0) {
        m_text = text;
        m_found = look();
    }
}

/// The step is closed, whatever becomes of the call.
void SimUndo::endMacro() {
    if (m_depth > 0 && --m_depth == 0) {
        Step step{m_text, {}};
        for (const Found& found : m_found) {
            const QVariantMap now = found.camera->state().toPlain(CameraState::recordSettings());
            const QVariantMap before = differing(found.settings, now);
            if (!before.isEmpty()) {
                step.changes.append({found.camera->device().address(), found.camera->headNumber(), before,
                                     differing(now, found.settings)});
            }
        }
        m_found.clear();
        if (!step.changes.isEmpty()) {
            m_undo = m_undo.mid(qMax(0, m_undo.size() + 1 - MostSteps));
            m_undo.append(step);
            m_redo.clear();
        }
    }
    m_host.calls.change(OPERATION("ZebUndo::endMacro"));
}

bool SimUndo::canUndo() const {
    m_host.calls.ask(OPERATION("canUndo"));
    return !undoText().isEmpty();
}

bool SimUndo::canRedo() const {
    m_host.calls.ask(OPERATION("canRedo"));
    return !redoText().isEmpty();
}

std::vector<SimUndo::Found> SimUndo::look() const {
    std::vector<Found> found;
    for (const auto& camera : m_host.cameras.holdConnected()) {
        found.push_back({camera, camera->state().toPlain(CameraState::recordSettings())});
    }
    return found;
}

QString SimUndo::textOf(const QList<Step>& steps) const {
    return steps.isEmpty() || m_host.appStatus.mode() != zeb::LiveMode ? QString() : steps.last().text;
}

QString SimUndo::move(QList<Step>& from, QList<Step>& to, bool back) {
    if (textOf(from).isEmpty() || m_depth > 0) {
        return {};
    }
    // Event loops run below, and what comes in them may not take the same step.
    const Step step = from.takeLast();
    Choice choice = choose(step.changes, back);
    const QList<Change> done = carryOut(choice, step.changes);
    if (!choice.waiting.isEmpty()) {
        from.append({step.text, choice.waiting});
    }
    if (!done.isEmpty()) {
        to.append({step.text, done});
    }
    m_host.updates.request();
    tell(step.text, done.size(), choice.lines, back);
    return step.text;
}

/// Heads share settings, so that a device of which one is left alone is left alone as a whole.
SimUndo::Choice SimUndo::choose(const QList<Change>& changes, bool back) const {
    QList<HeadSettings> all;
    for (const Change& change : changes) {
        all.append({change.address, change.head, back ? change.before : change.after});
    }
    const LoadPlan plan = SettingsBatch(m_host).plan(all);
    Choice choice;
    for (const QString& address : plan.absent) {
        choice.lines << line(address, TextKey("there is no such camera"));
    }
    QSet<QString> left;
    QList<const CameraPlan*> open;
    for (const CameraPlan& camera : plan.cameras) {
        if (const Change* change = find(changes, camera.camera)) {
            const Left why = whyLeft(camera, back ? change->after : change->before);
            if (why.line.isEmpty()) {
                open << &camera;
                continue;
            }
            choice.lines << why.line;
            left << change->address;
            choice.waiting += why.passes ? QList<Change>{*change} : QList<Change>();
        }
    }
    for (const CameraPlan* camera : open) {
        const Change& change = *find(changes, camera->camera);
        if (left.contains(change.address)) {
            choice.waiting << change;
            choice.lines << line(camera->camera.label, TextKey("another head of the device stays as it is"));
        } else {
            choice.wanted.append({change.address, change.head, back ? change.before : change.after});
        }
    }
    return choice;
}

SimUndo::Left SimUndo::whyLeft(const CameraPlan& camera, const QVariantMap& expected) const {
    const CameraState& state = camera.camera.state;
    if (camera.left != CameraPlan::Taken) {
        const bool passes = camera.left == CameraPlan::Locked || camera.left == CameraPlan::Armed ||
                            camera.left == CameraPlan::Recording;
        return {LoadTexts(m_host.translator).left(camera), passes};
    }
    if (state.lowLight && !expected.contains(LowLight)) {
        return {line(camera.camera.label, TextKey("it is in low light mode, and stays as it is")), true};
    }
    if (state.toPlain(expected.keys()) != expected) {
        return {line(camera.camera.label, TextKey("it was changed since, and stays as it is")), false};
    }
    return {};
}

QList<SimUndo::Change> SimUndo::carryOut(Choice& choice, const QList<Change>& changes) const {
    const SettingsBatch batch(m_host);
    const LoadTexts texts(m_host.translator);
    LoadPlan plan = batch.plan(choice.wanted);
    // There is no file that could lack something.
    QList<CameraPlan>& cameras = plan.cameras;
    cameras.erase(std::remove_if(cameras.begin(), cameras.end(),
                                 [](const CameraPlan& camera) { return camera.left == CameraPlan::NotInFile; }),
                  cameras.end());
    for (CameraPlan& camera : cameras) {
        camera.notInFile.clear();
    }
    choice.lines += texts.oddities(plan);
    QList<Change> done;
    const auto rows =
        batch.carryOut(plan, [&changes](const CameraPlan& camera) { return find(changes, camera.camera) != nullptr; });
    for (const SettingsBatch::Row& row : rows) {
        const QStringList surprises = batch.surprisesOf(row);
        choice.lines += surprises;
        if (surprises.isEmpty()) {
            done << *find(changes, row.plan->camera);
        }
    }
    return done;
}

void SimUndo::tell(const QString& text, int count, const QStringList& lines, bool back) const {
    const QString key = back ? TextKey("Taken back: %1 (cameras: %2)") : TextKey("Done again: %1 (cameras: %2)");
    const QString told = m_host.translator.translate(key).arg(text, QString::number(count));
    if (lines.isEmpty()) {
        m_host.messages.notify(Message::Info, told);
    } else {
        m_host.messages.tell(Message::Warn, told, lines);
    }
}

QString SimUndo::line(const QString& label, const QString& reason) const {
    return label % QStringLiteral(": ") % m_host.translator.translate(reason);
}
