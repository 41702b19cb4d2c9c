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

#include <QHash>
#include <QScopeGuard>
#include <QSet>
#include <QtDebug>

#include <algorithm>
#include <iterator>

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

/// What the camera has neither as before nor as after the step, and not from it.
template <typename Change>
QVariantMap straysOf(const Change& change, const CameraState& state) {
    const QVariantMap now = state.toPlain(change.before.keys());
    return differing(differing(differing(now, change.before), change.after), change.strays);
}

/// What it would have to take otherwise is of no use to it.
bool canHaveAll(const CameraPlan& camera) {
    return std::none_of(camera.settings.begin(), camera.settings.end(), [](const SettingPlan& setting) {
        return setting.why == SettingPlan::NotOffered || setting.why == SettingPlan::LongerThanFrame;
    });
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
        ++m_rigs;
        m_undo.clear();
        m_redo.clear();
        m_found.clear();
        m_depth = 0;
    });
}

void SimUndo::clear() {
    m_host.calls.change(OPERATION("ZebUndo::clear"));
    removeTools(m_undo);
    removeTools(m_redo);
}

void SimUndo::beginMacro(const QString& text) {
    m_host.calls.change(OPERATION("ZebUndo::beginMacro"), {text});
    if (m_depth == 0) {
        m_text = text;
        m_found = look();
    }
    ++m_depth;
}

/// The step is closed, whatever becomes of the call.
void SimUndo::endMacro() {
    if (m_depth > 0 && --m_depth == 0) {
        Step step{++m_steps, m_text, {}};
        for (const Found& found : m_found) {
            const QVariantMap now = found.camera->state().toPlain(CameraState::recordSettings());
            const QVariantMap before = differing(found.settings, now);
            if (!before.isEmpty()) {
                step.changes.append({found.camera->device().address(),
                                     found.camera->headNumber(),
                                     before,
                                     differing(now, found.settings),
                                     found.settings.value(LowLight).toBool(),
                                     {}});
            }
        }
        m_found.clear();
        // What is put back meanwhile is none of it.
        if (!step.changes.isEmpty() && !m_isMoving) {
            for (Step& other : m_undo) {
                other.passed = false;
            }
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
    const bool isOpen = m_depth == 0 && !m_isMoving && m_host.appStatus.mode() == zeb::LiveMode;
    const int next = nextOf(steps);
    return isOpen && next >= 0 ? steps[next].text : QString();
}

int SimUndo::nextOf(const QList<Step>& steps) {
    for (int next = steps.size() - 1; next >= 0; --next) {
        const QList<Change>& changes = steps[next].changes;
        const auto isFree = [&steps, next](const Change& change) { return !waitsFor(steps, next, change); };
        if (!steps[next].passed && std::any_of(changes.begin(), changes.end(), isFree)) {
            return next;
        }
    }
    return steps.size() - 1;
}

bool SimUndo::waitsFor(const QList<Step>& steps, int place, const Change& change) {
    return std::any_of(steps.begin() + place + 1, steps.end(), [&change](const Step& later) {
        return std::any_of(later.changes.begin(), later.changes.end(),
                           [&change](const Change& other) { return other.address == change.address; });
    });
}

QString SimUndo::move(QList<Step>& from, QList<Step>& to, bool back) {
    if (textOf(from).isEmpty()) {
        return {};
    }
    const int place = nextOf(from);
    const Step step = from[place];
    const int rig = m_rigs;
    // Event loops run below, and what comes in them may not take the same step.
    m_isMoving = true;
    const auto ended = qScopeGuard([this] { m_isMoving = false; });
    Choice choice = choose(from, place, back);
    const QList<Change> done = carryOut(choice, step.changes, back);
    m_host.updates.request();
    if (rig != m_rigs) {
        return step.text;
    }
    replace(from, {step.id, step.text, choice.waiting, done.isEmpty()});
    if (!done.isEmpty()) {
        join(to, {step.id, step.text, done, false}, !back);
    }
    tell(step.text, done.size(), choice, back);
    return step.text;
}

void SimUndo::replace(QList<Step>& steps, const Step& part) {
    const auto found =
        std::find_if(steps.begin(), steps.end(), [&part](const Step& step) { return step.id == part.id; });
    if (found != steps.end() && part.changes.isEmpty()) {
        steps.erase(found);
    } else if (found != steps.end()) {
        *found = part;
    }
}

void SimUndo::join(QList<Step>& steps, const Step& part, bool newestLast) {
    const auto place = std::find_if(steps.begin(), steps.end(), [&part, newestLast](const Step& step) {
        return newestLast ? step.id >= part.id : step.id <= part.id;
    });
    if (place != steps.end() && place->id == part.id) {
        place->changes += part.changes;
    } else {
        steps.insert(place, part);
    }
}

/// Heads share settings, so that a device of which one is left alone is left alone as a whole.
SimUndo::Choice SimUndo::choose(const QList<Step>& from, int place, bool back) const {
    const QList<Change>& changes = from[place].changes;
    QList<HeadSettings> all;
    for (const Change& change : changes) {
        all.append({change.address, change.head, back ? change.before : change.after});
    }
    const LoadPlan plan = SettingsBatch(m_host).plan(all);
    Choice choice;
    for (const QString& address : plan.absent) {
        choice.lines << line(address, TextKey("there is no such camera"));
    }
    QHash<QString, bool> left;  // addresses of devices, and whether they wait
    QList<const CameraPlan*> open;
    for (const CameraPlan& camera : plan.cameras) {
        const Change* change = find(changes, camera.camera);
        if (change == nullptr) {
            continue;
        }
        const Left why = waitsFor(from, place, *change)
                             ? Left{line(camera.camera.label, TextKey("another change of it comes first")), true}
                             : whyLeft(camera, *change);
        if (why.line.isEmpty()) {
            open << &camera;
        } else {
            choice.lines << why.line;
            left[change->address] = why.passes && left.value(change->address, true);
        }
    }
    QSet<const CameraPlan*> unfit;
    for (const CameraPlan* camera : open) {
        if (!left.contains(camera->camera.address) && !canHaveAll(*camera)) {
            choice.lines << line(camera->camera.label, TextKey("it can't have all that it had, and stays as it is"));
            unfit << camera;
        }
    }
    for (const CameraPlan* camera : unfit) {
        left[camera->camera.address] = false;
    }
    for (const CameraPlan* camera : open) {
        const Change& change = *find(changes, camera->camera);
        if (!left.contains(change.address)) {
            choice.wanted.append({change.address, change.head, back ? change.before : change.after});
        } else if (!unfit.contains(camera)) {
            choice.lines << line(camera->camera.label, TextKey("another head of the device stays as it is"));
        }
    }
    std::copy_if(changes.begin(), changes.end(), std::back_inserter(choice.waiting),
                 [&left](const Change& change) { return left.value(change.address, false); });
    return choice;
}

SimUndo::Left SimUndo::whyLeft(const CameraPlan& camera, const Change& change) const {
    const CameraState& state = camera.camera.state;
    if (camera.left != CameraPlan::Taken) {
        const bool passes = camera.left == CameraPlan::Locked || camera.left == CameraPlan::Armed ||
                            camera.left == CameraPlan::Recording || camera.left == CameraPlan::NotConnected;
        return {LoadTexts(m_host.translator).left(camera), passes};
    }
    if (state.lowLight && !change.inLowLight && !change.before.contains(LowLight)) {
        return {line(camera.camera.label, TextKey("it is in low light mode, and stays as it is")), true};
    }
    if (!straysOf(change, state).isEmpty()) {
        return {line(camera.camera.label, TextKey("it was changed since, and stays as it is")), false};
    }
    return {};
}

QList<SimUndo::Change> SimUndo::carryOut(Choice& choice, const QList<Change>& changes, bool back) const {
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
    const auto rows =
        batch.carryOut(plan, [&changes](const CameraPlan& camera) { return find(changes, camera.camera) != nullptr; });
    QList<Change> done;
    for (const SettingsBatch::Row& row : rows) {
        const QStringList surprises = batch.surprisesOf(row);
        choice.lines += surprises;
        Change change = *find(changes, row.plan->camera);
        if (surprises.isEmpty()) {
            change.strays.clear();
            done << change;
        } else if (row.camera && !row.camera->isGone()) {
            change.strays = straysOf(change, row.camera->state());
            choice.waiting << change;
        }
    }
    for (const CameraPlan& camera : cameras) {
        const auto isOfIt = [&camera](const SettingsBatch::Row& row) { return row.plan == &camera; };
        if (std::any_of(rows.begin(), rows.end(), isOfIt)) {
            continue;
        }
        // It has all of it already, or is left alone for another head.
        const Change& change = *find(changes, camera.camera);
        const QVariantMap& wanted = back ? change.before : change.after;
        (camera.camera.state.toPlain(wanted.keys()) == wanted ? done : choice.waiting) << change;
    }
    return done;
}

void SimUndo::tell(const QString& text, int count, const Choice& choice, bool back) const {
    const QString key = count == 0
                            ? (back ? TextKey("Nothing was taken back: %1") : TextKey("Nothing was done again: %1"))
                        : back ? TextKey("Taken back: %1 (cameras: %2)")
                               : TextKey("Done again: %1 (cameras: %2)");
    const QString told =
        m_host.translator.translate(key).replace(QLatin1String("%2"), QString::number(count)).arg(text);
    QStringList lines = choice.lines;
    if (lines.isEmpty() && count > 0) {
        m_host.messages.notify(Message::Info, told);
        return;
    }
    if (!choice.waiting.isEmpty()) {
        const QString rest = back ? TextKey("Undo takes them back when they can be changed.")
                                  : TextKey("Redo does it when they can be changed.");
        lines << m_host.translator.translate(rest);
    }
    for (const QString& line : lines) {
        qWarning().noquote() << told << line;
    }
    m_host.messages.tell(Message::Warn, told, lines);
}

QString SimUndo::line(const QString& label, const QString& reason) const {
    return label % QStringLiteral(": ") % m_host.translator.translate(reason);
}
