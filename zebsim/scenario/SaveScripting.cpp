#include "SaveScripting.h"

#include "EventWait.h"
#include "PlanDialog.h"
#include "SaveDialog.h"
#include "SaveProgress.h"
#include "SaveTexts.h"
#include "ScenarioError.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>

namespace {

constexpr int ActivationMs = 2000;
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

void choose(QComboBox& box, const QString& format) {
    const int index = box.findData(format);
    if (index < 0) {
        throw ScenarioError(QStringLiteral("files have no format \"%1\"").arg(format));
    }
    if (!(box.model()->index(index, 0).flags() & Qt::ItemIsEnabled)) {
        throw ScenarioError(QStringLiteral("the format \"%1\" can't be written here").arg(format));
    }
    box.setCurrentIndex(index);
}

/// Suffixes of preferences that names and formats go by.
bool isOption(const QString& member) {
    static const QRegularExpression options(
        QStringLiteral("^(filename|groupdir|subdir)[a-z]*$|^(png|tiff|jpeg)/[a-z]+$|^(singlepath|multipath[a-z]+)$"));
    return options.match(member).hasMatch();
}

QVariantMap plainPlan(const SavePlan& plan) {
    const SaveOrders& orders = plan.orders;
    QVariantList tracks;
    for (std::size_t i = 0; i < orders.tracks.size(); ++i) {
        const SaveTrack& track = orders.tracks[i];
        tracks.append(QVariantMap{{QStringLiteral("name"), track.name},
                                  {QStringLiteral("files"), filesIn(track, orders.format)},
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
    return (isOrderLeft() && qobject_cast<const SaveDialog*>(&dialog) != nullptr) ||
           (m_isPlanExpected && qobject_cast<const PlanDialog*>(&dialog) != nullptr);
}

void SaveScripting::serve(QDialog& dialog) {
    auto* save = qobject_cast<SaveDialog*>(&dialog);
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

void SaveScripting::serveDialog(SaveDialog& dialog, QVariantMap target) {
    m_agrees = target.value(Agree, true).toBool();
    target.remove(Agree);
    try {
        for (auto member = target.begin(); member != target.end(); ++member) {
            if (member.key() == Folder) {
                dialog.findChild<QLineEdit*>(Folder)->setText(member->toString());
            } else if (member.key() == Format) {
                choose(*dialog.findChild<QComboBox*>(Format), saveFormat(member->toString()).id);
            } else if (!isOption(member.key())) {
                throw ScenarioError(QStringLiteral("a save has no option %1").arg(member.key()));
            } else {
                dialog.setOption(member.key(), *member);
            }
        }
    } catch (const ScenarioError&) {
        dialog.reject();
        throw;
    }
    m_isPlanExpected = true;
    const QPointer<SaveDialog> alive(&dialog);
    dialog.accept();
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
