#include "CommandLine.h"

#include "Translator.h"

#include <QCommandLineParser>

namespace {

constexpr int UsageError = 2;
constexpr int DefaultTimeout = 120;
constexpr int LargestRig = 4096;

struct Options {
    QCommandLineOption rig{QStringLiteral("rig"),
                           QStringLiteral("Simulate the cameras of a rig file, of a rig that ships, or so many cameras "
                                          "of the standard model."),
                           QStringLiteral("FILE|N")};
    QCommandLineOption prefs{QStringLiteral("prefs"), QStringLiteral("Keep the preferences in this file."),
                             QStringLiteral("FILE")};
    QCommandLineOption scenario{QStringLiteral("scenario"),
                                QStringLiteral("Run a scenario and exit: 0 when all its checks held, 1 when not."),
                                QStringLiteral("FILE.js")};
    QCommandLineOption timeout{
        QStringLiteral("timeout"),
        QStringLiteral("End a scenario that is still running after so many seconds (%1).").arg(DefaultTimeout),
        QStringLiteral("SECONDS"), QString::number(DefaultTimeout)};
    QCommandLineOption plugin{QStringLiteral("plugin"),
                              QStringLiteral("Load this plug-in instead of the wren.zeb beside the program."),
                              QStringLiteral("FILE")};
    QCommandLineOption style{QStringLiteral("style"), QStringLiteral("Start in this style."),
                             QStringLiteral("light|dark")};
    QCommandLineOption language{QStringLiteral("lang"), QStringLiteral("Speak this language."),
                                Translator::languages().join(QLatin1Char('|'))};
    QCommandLineOption scriptedVisa{
        QStringLiteral("scripted-visa"),
        QStringLiteral("Bring a simulated signal generator, by a VISA library of the program's own.")};
    QCommandLineOption noTable{QStringLiteral("no-table"), QStringLiteral("Leave the camera table closed at first.")};
};

CommandLine mistake(const QCommandLineParser& parser, const QString& text) {
    CommandLine line;
    line.printout = text % QLatin1String("\n\n") % parser.helpText();
    line.exitStatus = UsageError;
    return line;
}

/// The first mistake in the values; empty when there is none.
QString wrongValue(const QCommandLineParser& parser, const Options& options, CommandLine& line) {
    const auto isOneOf = [](const QString& value, const QStringList& choices) {
        return value.isEmpty() || choices.contains(value);
    };
    if (!parser.positionalArguments().isEmpty()) {
        return QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    }
    if (!isOneOf(line.style, {QStringLiteral("light"), QStringLiteral("dark")})) {
        return QStringLiteral("--style takes light or dark, not '%1'.").arg(line.style);
    }
    if (!isOneOf(line.language, Translator::languages())) {
        return QStringLiteral("--lang takes %1, not '%2'.")
            .arg(Translator::languages().join(QStringLiteral(" or ")), line.language);
    }
    line.scenarioTimeout = parser.value(options.timeout).toInt();
    if (line.scenarioTimeout < 1) {
        return QStringLiteral("--timeout takes a number of seconds, not '%1'.").arg(parser.value(options.timeout));
    }
    bool isCount = false;
    const int count = line.rig.toInt(&isCount);
    if (isCount && (count < 1 || count > LargestRig)) {
        return QStringLiteral("--rig takes 1 to %1 cameras, not %2.").arg(LargestRig).arg(count);
    }
    line.cameraCount = isCount ? count : 0;
    return {};
}

}  // namespace

CommandLine CommandLine::parse(const QStringList& arguments) {
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A viewer with simulated cameras that runs the camera table plug-in."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({options.rig, options.prefs, options.scenario, options.timeout, options.plugin, options.style,
                       options.language, options.scriptedVisa, options.noTable});
    if (!parser.parse(arguments)) {
        return mistake(parser, parser.errorText());
    }

    CommandLine line;
    if (parser.isSet(help)) {
        line.printout = parser.helpText();
    } else if (parser.isSet(version)) {
        line.printout = QCoreApplication::applicationName() % QLatin1Char(' ') %
                        QCoreApplication::applicationVersion() % QLatin1Char('\n');
    } else {
        line.rig = parser.value(options.rig);
        line.prefs = parser.value(options.prefs);
        line.scenario = parser.value(options.scenario);
        line.plugin = parser.value(options.plugin);
        line.style = parser.value(options.style);
        line.language = parser.value(options.language);
        line.scriptedVisa = parser.isSet(options.scriptedVisa);
        line.openTable = !parser.isSet(options.noTable);
        const QString wrong = wrongValue(parser, options, line);
        if (!wrong.isEmpty()) {
            return mistake(parser, wrong);
        }
    }
    return line;
}
