#include "CommandLine.h"
#include "HostPages.h"
#include "OffscreenScreen.h"
#include "OnePress.h"
#include "OverActiveWindow.h"
#include "PluginLoader.h"
#include "PluginSlot.h"
#include "Rig.h"
#include "ScenarioMenu.h"
#include "ScenarioRunner.h"
#include "Simulator.h"
#include "ViewerWindow.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int CannotStart = 2;

/// Help, version and mistakes must work without a display, so no QApplication is made for them.
CommandLine parseWithoutDisplay(int argc, char** argv) {
    const QCoreApplication core(argc, argv);
    return CommandLine::parse(QCoreApplication::arguments());
}

/// Qt ends the process when it finds no display.
void tellMissingDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type != QtFatalMsg) {
        return;
    }
    std::fprintf(stderr,
                 "zebsim needs a display, and there is none to be had. To run without one, as for a scenario, set "
                 "QT_QPA_PLATFORM=offscreen, or start it by xvfb-run.\n%s\n",
                 qUtf8Printable(text));
    std::_Exit(CannotStart);
}

int runScenario(Simulator& simulator, const CommandLine& line) {
    int status = 0;
    simulator.run([&] {
        status = ScenarioRunner(simulator, line.scenarioTimeout).run(line.scenario);
        simulator.quit();
    });
    return status;
}

int runViewer(Simulator& simulator, const CommandLine& line) {
    return simulator.run([&] {
        if (line.openTable && simulator.plugin() != nullptr) {
            simulator.plugin()->open();
        }
    });
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setOrganizationName(QStringLiteral("zebsim"));
    QCoreApplication::setApplicationName(QStringLiteral("zebsim"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEBSIM_VERSION));
    const CommandLine line = parseWithoutDisplay(argc, argv);
    if (!line.printout.isEmpty()) {
        std::fputs(qUtf8Printable(line.printout), line.exitStatus == 0 ? stdout : stderr);
        return line.exitStatus;
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // The options are ours; Qt has a meaning of its own for some of their names.
    int ownName = 1;
    const QtMessageHandler handler = qInstallMessageHandler(tellMissingDisplay);
    const QApplication app(ownName, argv);
    qInstallMessageHandler(handler);
    QApplication::setQuitOnLastWindowClosed(false);
    setUpOffscreen(QSize(1920, 1200));
    const OnePress onePress;
    OverActiveWindow::rememberWindows();
    initHostPages();
    try {
        Simulator simulator(line);
        const ScenarioMenu scenarios(simulator);
        simulator.window().show();
        return line.scenario.isEmpty() ? runViewer(simulator, line) : runScenario(simulator, line);
    } catch (const std::runtime_error& e) {
        // A rig or a plug-in that can't be used.
        std::fprintf(stderr, "%s\n", e.what());
        return CannotStart;
    }
}
