#include "CommandLine.h"
#include "HostPages.h"
#include "OffscreenScreen.h"
#include "ScenarioRunner.h"
#include "Simulator.h"
#include "ViewerWindow.h"
#include "camera/Rig.h"
#include "host/PluginLoader.h"
#include "host/PluginSlot.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int CannotStart = 2;

/// Help, version and mistakes must work without a display, so no QApplication is made for them.
CommandLine parseWithoutDisplay(int argc, char** argv) {
    const QCoreApplication core(argc, argv);
    return CommandLine::parse(QCoreApplication::arguments());
}

int runScenario(QApplication& app, Simulator& simulator, const CommandLine& line) {
    int status = 0;
    QTimer::singleShot(0, &app, [&] {
        status = ScenarioRunner(simulator, line.scenarioTimeout).run(line.scenario);
        simulator.quit();
    });
    QApplication::exec();
    return status;
}

int runViewer(QApplication& app, Simulator& simulator, const CommandLine& line) {
    if (line.openTable && simulator.plugin() != nullptr)
        QTimer::singleShot(0, &app, [&simulator] { simulator.plugin()->open(); });
    return QApplication::exec();
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
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    enlargeOffscreenScreen(QSize(1920, 1200));
    initHostPages();
    try {
        Simulator simulator(line);
        simulator.window().show();
        return line.scenario.isEmpty() ? runViewer(app, simulator, line) : runScenario(app, simulator, line);
    } catch (const std::runtime_error& e) {
        // A rig or a plug-in that can't be used.
        std::fprintf(stderr, "%s\n", e.what());
        return CannotStart;
    }
}
