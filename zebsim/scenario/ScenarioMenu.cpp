#include "ScenarioMenu.h"

#include "AppWindows.h"
#include "ScenarioCaption.h"
#include "ScenarioRunner.h"
#include "Simulator.h"
#include "UiText.h"
#include "ViewerWindow.h"

#include <QMenu>
#include <QtDebug>

// Q_INIT_RESOURCE must not stand in a namespace.
static void initScenarioResources() {
    Q_INIT_RESOURCE(zebsim_scenarios);
}

namespace {

/// Puts back what a scenario changes of the program itself.
class Restorer {
public:
    explicit Restorer(Simulator& simulator)
        : m_prefs(simulator.host().prefs()),
          m_clock(simulator.clock()),
          m_values(m_prefs.values()),
          m_speed(m_clock.speed()) {}
    ~Restorer() {
        m_prefs.takeStored(QStringLiteral("wren/settings/done"));
        for (auto value = m_values.begin(); value != m_values.end(); ++value) {
            // Those of the table are its own, and it lives on.
            if (!value.key().startsWith(QLatin1String("wren/")) && m_prefs.value(value.key()) != *value) {
                m_prefs.setValue(value.key(), *value);
            }
        }
        m_clock.setSpeed(m_speed);
    }
    Restorer(const Restorer&) = delete;
    Restorer& operator=(const Restorer&) = delete;

private:
    Preferences& m_prefs;
    RealClock& m_clock;
    const QHash<QString, QVariant> m_values;
    const double m_speed;
};

}  // namespace

ScenarioMenu::ScenarioMenu(Simulator& simulator) : m_simulator(simulator) {
    initScenarioResources();
    QMenu& menu = simulator.window().addMenu(uiText("Sce&narios"));
    const auto add = [&](const QString& title, const QString& file) {
        QAction* entry = menu.addAction(title);
        entry->setObjectName(file);
        const QString path = QStringLiteral(":/zebsim/scenarios/") % file;
        // The menu is gone by then.
        connect(
            entry, &QAction::triggered, this, [this, title, path] { play(title, path); }, Qt::QueuedConnection);
    };
    add(uiText("Connect and set"), QStringLiteral("connect_and_set.js"));
    add(uiText("Record and save"), QStringLiteral("record_and_save.js"));
    add(uiText("A camera that fails"), QStringLiteral("failing_camera.js"));
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { refresh(menu); });
}

void ScenarioMenu::refresh(QMenu& menu) {
    const QString why = refusal();
    // Over entries that can be chosen it would be in the way.
    menu.setToolTipsVisible(!why.isEmpty());
    const QList<QAction*> entries = menu.actions();
    for (QAction* entry : entries) {
        entry->setEnabled(why.isEmpty());
        entry->setToolTip(why);
        entry->setStatusTip(why.isEmpty() ? uiText("Shows it with cameras of its own, which take the place of these.")
                                          : why);
    }
}

QString ScenarioMenu::refusal() const {
    SimHost& host = m_simulator.host();
    if (ScenarioRunner::isRunning()) {
        return uiText("A scenario runs.");
    }
    if (m_simulator.plugin() == nullptr) {
        return uiText("No plug-in is loaded.");
    }
    if (host.recorder().isUnderWay()) {
        return uiText("Cameras are armed or record.");
    }
    const SimSaver& saver = host.saver();
    if (saver.isSaving() || saver.isBgSaving() || saver.isBgConverting()) {
        return uiText("Images are being saved.");
    }
    return {};
}

void ScenarioMenu::play(const QString& title, const QString& path) {
    SimHost& host = m_simulator.host();
    const QString why = refusal();
    if (!why.isEmpty()) {
        host.messages().tell(Message::Info, why);
        return;
    }
    if (!host.unsavedGuard().mayReplace()) {
        return;
    }
    qInfo() << "[USER] Scenario:" << title;
    const QStringList faults = run(title, path);
    if (!faults.isEmpty() && !host.isApplicationClosing()) {
        host.messages().tell(Message::Error, uiText("The scenario \"%1\" has not gone as it should.").arg(title),
                             faults);
    }
}

QStringList ScenarioMenu::run(const QString& title, const QString& path) {
    const Restorer restorer(m_simulator);
    if (!m_saved) {
        m_saved.emplace();
    }
    m_simulator.host().prefs().assume(QStringLiteral("export/dir"), m_saved->path());
    ScenarioCaption caption(title, m_simulator.window());
    ScenarioRunner runner(m_simulator);
    QStringList faults;
    connect(&runner, &ScenarioRunner::failed, this, [&](const QString& text) { faults.append(text); });
    connect(&runner, &ScenarioRunner::printed, &caption, [&](const QString& text) {
        qInfo() << "Scenario:" << text;
        caption.tell(text);
    });
    runner.run(path);
    return faults;
}
