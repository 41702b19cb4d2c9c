#include "TableDefaults.h"

#include "SettingsKeys.h"
#include "ZebHost.h"

namespace {

/// The text of a list, empty when the list is switched off.
QString listText(const ZebHost& host, const QString& key) {
    return host.getPrefBool(key % settingskeys::SwitchSuffix) ? host.getPrefString(key) : QString();
}

}  // namespace

TableDefaults TableDefaults::read(const ZebHost& host) {
    using namespace defaultsettings;
    TableDefaults settings;
    settings.groups = readGroups(host.getPrefString(settingskeys::Groups));
    if (host.getPrefBool(settingskeys::ExternalSyncSignals % settingskeys::SwitchSuffix)) {
        settings.syncFrequency = host.getPrefInt(settingskeys::ExternalSyncSignal);
        settings.syncSignals =
            host.getPrefString(settingskeys::ExternalSyncSignals).split(QLatin1Char(':'), Qt::SkipEmptyParts);
    }
    settings.allowed.frameRates = readNumbers(listText(host, settingskeys::FrameRates));
    settings.allowed.shutterSpeeds = readNumbers(listText(host, settingskeys::ShutterSpeeds));
    settings.allowed.resolutions = readResolutions(listText(host, settingskeys::Resolutions));
    settings.areas = readAreas(listText(host, settingskeys::Areas));
    return settings;
}

namespace {

bool isNumber(const QString& text) {
    return text.toInt() > 0;
}

/// The entries of a list that have at least `least` parts.
QList<QStringList> readEntries(const QString& text, int least) {
    QList<QStringList> entries;
    for (const QString& entry : text.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        const QStringList parts = entry.split(QLatin1Char('|'));
        if (parts.size() >= least && !parts.first().isEmpty()) {
            entries.append(parts);
        }
    }
    return entries;
}

}  // namespace

QStringList defaultsettings::readNumbers(const QString& text) {
    QStringList numbers;
    for (const QStringList& parts : readEntries(text, 1)) {
        if (isNumber(parts.first())) {
            numbers.append(parts.first());
        }
    }
    return numbers;
}

QList<CameraGroup> defaultsettings::readGroups(const QString& text) {
    QList<CameraGroup> groups;
    for (const QStringList& parts : readEntries(text, 1)) {
        groups.append({parts.first(), parts.mid(1)});
    }
    return groups;
}

QStringList defaultsettings::readResolutions(const QString& text) {
    QStringList resolutions;
    for (const QStringList& parts : readEntries(text, 2)) {
        if (isNumber(parts.at(0)) && isNumber(parts.at(1))) {
            resolutions.append(parts.at(0) % QLatin1String(" x ") % parts.at(1));
        }
    }
    return resolutions;
}

RecordAreas defaultsettings::readAreas(const QString& text) {
    RecordAreas areas;
    for (const QStringList& parts : readEntries(text, 3)) {
        areas.insert(parts.at(0).toInt(), {parts.at(1).toInt(), parts.at(2).toInt()});
    }
    return areas;
}
