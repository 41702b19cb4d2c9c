#include "SaveScripting.h"

#include "EventWait.h"
#include "GUI_SaveDialog.h"
#include "GUI_WebView.h"
#include "PageScript.h"
#include "PlanDialog.h"
#include "SaveOptions.h"
#include "SaveProgress.h"
#include "SaveTexts.h"
#include "ScenarioError.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>
#include <QWebView>

#include <algorithm>

namespace {

constexpr int ActivationMs = 2000;
/// What videos can be made is found out by making some.
constexpr int TrialMs = 60000;
const QString Folder = QStringLiteral("folder");
const QString Format = QStringLiteral("format");
const QString Agree = QStringLiteral("agree");

SaveProgress* standingProgress() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        auto* progress = qobject_cast<SaveProgress*>(window);
        if (progress != nullptr && progress->isVisible()) {
            return progress;
        }
    }
    return nullptr;
}

/// What is wrong with it; empty when the page has taken it.
QString fill(QWebView& page, const QString& suffix, const QVariant& value) {
    const QByteArray values = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    const QString script = QStringLiteral("savePage.fill(%1, %2[0])");
    return PageScript(script.arg(scriptString(suffix), QString::fromUtf8(values))).run(page).toString();
}

void waitForTrials(QWebView& page) {
    QElapsedTimer asked;
    asked.start();
    waitUntil([&] { return !PageScript(QStringLiteral("app.trying")).run(page).toBool(); },
              [&] { return asked.hasExpired(TrialMs); });
}

bool isOption(const QString& suffix) {
    const QList<SaveOption>& options = saveOptions();
    return std::any_of(options.begin(), options.end(),
                       [&](const SaveOption& option) { return option.suffix == suffix; });
}

/// What is wrong with it; empty when the page has taken it.
QString fillMember(QWebView& page, const QString& name, const QVariant& wanted) {
    const QString suffix = name == Folder ? QStringLiteral("dir") : name;
    if (!isOption(suffix)) {
        throw ScenarioError(QStringLiteral("a save has no option %1").arg(suffix));
    }
    const QVariant value = suffix == Format ? QVariant(saveFormat(wanted.toString()).id)
                           : name == Folder ? QVariant(QDir(wanted.toString()).absolutePath())
                                            : wanted;
    waitForTrials(page);
    const QString fault = fill(page, suffix, value);
    return fault.isEmpty() ? QString() : QString(suffix % QStringLiteral(": ") % fault);
}

/// What is there only once something else is chosen comes after that, whatever their order.
void fill(QWebView& page, QVariantMap target) {
    QStringList faults;
    int left = 0;
    do {
        left = target.size();
        faults.clear();
        for (auto member = target.begin(); member != target.end();) {
            const QString fault = fillMember(page, member.key(), *member);
            faults += fault.isEmpty() ? QStringList() : QStringList(fault);
            member = fault.isEmpty() ? target.erase(member) : ++member;
        }
    } while (!target.isEmpty() && target.size() < left);
    if (!faults.isEmpty()) {
        throw ScenarioError(faults.first());
    }
    waitForTrials(page);
    const QString fault = PageScript(QStringLiteral("byId('fault').textContent")).run(page).toString();
    if (!fault.isEmpty()) {
        throw ScenarioError(QStringLiteral("the page does not save: %1").arg(fault));
    }
}

QVariantMap plainPlan(const SavePlan& plan) {
    const SaveOrders& orders = plan.orders;
    QVariantList tracks;
    for (std::size_t i = 0; i < orders.tracks.size(); ++i) {
        const SaveTrack& track = orders.tracks[i];
        tracks.append(QVariantMap{{QStringLiteral("name"), track.name},
                                  {QStringLiteral("files"), orders.filesOf(track)},
                                  {QStringLiteral("first"), orders.fileOf(track, track.from)},
                                  {QStringLiteral("last"), orders.fileOf(track, track.frames() - 1)},
                                  {QStringLiteral("bytes"), double(plan.bytes[i])}});
    }
    QVariantList entries;
    for (const PlanEntry& entry : plan.entries) {
        entries.append(QVariantMap{{QStringLiteral("camera"), entry.camera},
                                   {QStringLiteral("path"), entry.path},
                                   {QStringLiteral("count"), double(entry.count)},
                                   {QStringLiteral("text"), entryText(entry)},
                                   {QStringLiteral("blocks"), entry.isBlocking()},
                                   {QStringLiteral("asks"), entry.isQuestion()}});
    }
    return {{QStringLiteral("tracks"), tracks},
            {QStringLiteral("entries"), entries},
            {QStringLiteral("files"), double(plan.files)},
            {QStringLiteral("bytes"), double(plan.allBytes)},
            {QStringLiteral("possible"), plan.isPossible()}};
}

}  // namespace

bool SaveScripting::isFor(const QDialog& dialog) const {
    return (isOrderLeft() && qobject_cast<const GUI_SaveDialog*>(&dialog) != nullptr) ||
           (m_isPlanExpected && qobject_cast<const PlanDialog*>(&dialog) != nullptr);
}

void SaveScripting::serve(QDialog& dialog) {
    auto* save = qobject_cast<GUI_SaveDialog*>(&dialog);
    if (save != nullptr) {
        serveDialog(*save, m_orders.takeFirst());
        return;
    }
    const bool agrees = m_agrees && static_cast<PlanDialog&>(dialog).plan().isPossible();
    dialog.done(agrees ? QDialog::Accepted : QDialog::Rejected);
    if (m_agrees && !agrees) {
        throw ScenarioError(QStringLiteral("the plan is not possible, see zeb.plan()"));
    }
}

void SaveScripting::serveDialog(GUI_SaveDialog& dialog, QVariantMap target) {
    m_agrees = target.value(Agree, true).toBool();
    target.remove(Agree);
    try {
        fill(*dialog.getWebView(), target);
    } catch (const ScenarioError&) {
        dialog.reject();
        throw;
    }
    m_isPlanExpected = true;
    const QPointer<GUI_SaveDialog> alive(&dialog);
    PageScript(QStringLiteral("byId('save').click()")).run(*dialog.getWebView());
    m_isPlanExpected = false;
    if (alive && alive->isVisible()) {
        alive->reject();
    }
}

QVariantMap SaveScripting::plan() {
    const auto* dialog = qobject_cast<PlanDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
        throw ScenarioError(QStringLiteral("no plan stands"));
    }
    return plainPlan(dialog->plan());
}

QStringList SaveScripting::results(const std::function<bool()>& givenUp, bool close) {
    const QPointer<SaveProgress> progress = standingProgress();
    if (progress.isNull()) {
        throw ScenarioError(QStringLiteral("nothing is being saved"));
    }
    if (!waitUntil([&] { return progress.isNull() || progress->isFinished(); }, givenUp) || progress.isNull()) {
        throw ScenarioError(QStringLiteral("the save has not come to its end"));
    }
    const QStringList lines = progress->lines();
    if (!close) {
        return lines;
    }
    progress->close();
    // The window before comes to the front, which keys and signals ask for.
    QElapsedTimer asked;
    asked.start();
    waitUntil([&] { return QApplication::activeWindow() != progress && QApplication::activeWindow() != nullptr; },
              [&] { return givenUp() || asked.hasExpired(ActivationMs); });
    return lines;
}
