#include "PreferencePages.h"

#include "TextKey.h"
#include "Translator.h"

#include <QLocale>

namespace {

PreferenceField box(const char* key, const QString& label) {
    return {QLatin1String(key), label, PreferenceField::Box};
}

PreferenceField text(const char* key, const QString& label) {
    return {QLatin1String(key), label, PreferenceField::Text};
}

PreferenceField number(const char* key, const QString& label, int lowest, int highest) {
    return {QLatin1String(key), label, PreferenceField::Number, {}, lowest, highest};
}

PreferenceField choice(const char* key, const QString& label, const QList<PreferenceChoice>& choices) {
    return {QLatin1String(key), label, PreferenceField::Choice, choices};
}

QList<PreferenceChoice> tableColours() {
    return {{QStringLiteral("red"), TextKey("Red")},       {QStringLiteral("green"), TextKey("Green")},
            {QStringLiteral("yellow"), TextKey("Yellow")}, {QStringLiteral("orange"), TextKey("Orange")},
            {QStringLiteral("blue"), TextKey("Blue")},     {QStringLiteral("skyblue"), TextKey("Sky blue")}};
}

/// By their English names, which are keys too.
QList<PreferenceChoice> languages() {
    QList<PreferenceChoice> choices;
    for (const QString& code : Translator::languages()) {
        choices.append({code, QLocale::languageToString(QLocale(code).language())});
    }
    return choices;
}

QList<PreferenceField> generalFields() {
    return {
        choice("env/style", TextKey("Style"),
               {{QStringLiteral("light"), TextKey("Light")}, {QStringLiteral("dark"), TextKey("Dark")}}),
        choice("env/language", TextKey("Language (from the next start on)"), languages()),
        choice("customize/unitSystem", TextKey("Units of length"), {{1, TextKey("Metric")}, {0, TextKey("Imperial")}}),
        box("devicemanager/connectedCameraOnlyShowing", TextKey("List connected cameras only")),
    };
}

QList<PreferenceField> displayFields() {
    return {
        choice("display/ShutterSpeed", TextKey("Shutter speed"),
               {{1, TextKey("As a fraction")}, {2, TextKey("As a time")}}),
        box("display/DisplayWithRealBitDepth", TextKey("Show images in their real bit depth")),
        box("display/recordRateInsertDelimiter", TextKey("Group the digits of frame rates")),
        box("display/frameInsertDelimiter", TextKey("Group the digits of frame numbers")),
    };
}

QList<PreferenceField> recordingFields() {
    return {
        box("recording/AutoDownload", TextKey("Save after recording")),
        box("recording/useTriggerTest", TextKey("Offer the trigger test")),
        box("recording/RecAllConnectedCamera", TextKey("Record on all connected cameras")),
        box("alert/unsavedrecording", TextKey("Ask before images that nobody has saved are lost")),
    };
}

QList<PreferenceField> ioFields() {
    return {
        box("wren/settings/syncInEnable", TextKey("Synchronise the cameras")),
        box("sync/external", TextKey("Synchronise on an external signal")),
        text("sync/masterCamera", TextKey("Address of the master camera")),
        text("sync/generator/address", TextKey("Address of the signal generator")),
        choice("sync/generator/input", TextKey("Port that the signal comes in by"),
               {{0, TextKey("ON CAM POS")}, {1, TextKey("ON OTHERS POS")}}),
        choice("sync/lport", TextKey("Between signal and cameras"),
               {{0, TextKey("Nothing")}, {1, TextKey("L-PORT")}, {2, TextKey("Sync Hub")}}),
        text("sync/lport/ipaddress", TextKey("Addresses of Sync Hubs, with commas between")),
        box("alert/setsynchronization", TextKey("Remind of the wiring after a synchronisation")),
    };
}

QList<PreferenceField> tableFields() {
    return {
        number("wren/table/interval", TextKey("Interval of the table in ms"), 50, 60000),
        choice("wren/settings/recreadyTableColor", TextKey("Colour while ready"), tableColours()),
        choice("wren/settings/recordingTableColor", TextKey("Colour while recording"), tableColours()),
        choice("wren/settings/memoryTableColor", TextKey("Colour of the memory mode"), tableColours()),
        box("alert/wren/multiheadlockalert", TextKey("Ask before locked heads are changed")),
    };
}

}  // namespace

const QList<PreferencePage>& preferencePages() {
    static const QList<PreferencePage> pages = {{TextKey("s_general"), generalFields()},
                                                {TextKey("s_display"), displayFields()},
                                                {TextKey("s_record"), recordingFields()},
                                                {TextKey("s_io"), ioFields()},
                                                {TextKey("s_table"), tableFields()}};
    return pages;
}
