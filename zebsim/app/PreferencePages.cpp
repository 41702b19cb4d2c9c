#include "PreferencePages.h"

namespace {

PreferenceField box(const char* key, const char* label) {
    return {QLatin1String(key), label, PreferenceField::Box};
}

PreferenceField text(const char* key, const char* label) {
    return {QLatin1String(key), label, PreferenceField::Text};
}

PreferenceField number(const char* key, const char* label, int lowest, int highest) {
    return {QLatin1String(key), label, PreferenceField::Number, {}, lowest, highest};
}

PreferenceField choice(const char* key, const char* label, const QList<PreferenceChoice>& choices) {
    return {QLatin1String(key), label, PreferenceField::Choice, choices};
}

QList<PreferenceChoice> tableColours() {
    return {{QStringLiteral("red"), "Red"},       {QStringLiteral("green"), "Green"},
            {QStringLiteral("yellow"), "Yellow"}, {QStringLiteral("orange"), "Orange"},
            {QStringLiteral("blue"), "Blue"},     {QStringLiteral("skyblue"), "Sky blue"}};
}

QList<PreferenceField> generalFields() {
    return {
        choice("env/style", "Style", {{QStringLiteral("light"), "Light"}, {QStringLiteral("dark"), "Dark"}}),
        choice("env/language", "Language (from the next start on)",
               {{QStringLiteral("en"), "English"}, {QStringLiteral("ja"), "Japanese"}}),
        choice("customize/unitSystem", "Units of length", {{1, "Metric"}, {0, "Imperial"}}),
        box("devicemanager/connectedCameraOnlyShowing", "List connected cameras only"),
    };
}

QList<PreferenceField> displayFields() {
    return {
        choice("display/ShutterSpeed", "Shutter speed", {{1, "As a fraction"}, {2, "As a time"}}),
        box("display/DisplayWithRealBitDepth", "Show images in their real bit depth"),
        box("display/recordRateInsertDelimiter", "Group the digits of frame rates"),
        box("display/frameInsertDelimiter", "Group the digits of frame numbers"),
    };
}

QList<PreferenceField> recordingFields() {
    return {
        box("recording/AutoDownload", "Save after recording"),
        box("recording/useTriggerTest", "Offer the trigger test"),
        box("recording/RecAllConnectedCamera", "Record on all connected cameras"),
        box("alert/unsavedrecording", "Ask before images that nobody has saved are lost"),
    };
}

QList<PreferenceField> ioFields() {
    return {
        box("wren/settings/syncInEnable", "Synchronise the cameras"),
        box("sync/external", "Synchronise on an external signal"),
        text("sync/masterCamera", "Address of the master camera"),
        text("sync/generator/address", "Address of the signal generator"),
        choice("sync/generator/input", "Port that the signal comes in by", {{0, "ON CAM POS"}, {1, "ON OTHERS POS"}}),
        choice("sync/lport", "Between signal and cameras", {{0, "Nothing"}, {1, "L-PORT"}, {2, "Sync Hub"}}),
        text("sync/lport/ipaddress", "Addresses of Sync Hubs, with commas between"),
        box("alert/setsynchronization", "Remind of the wiring after a synchronisation"),
    };
}

QList<PreferenceField> tableFields() {
    return {
        number("wren/table/interval", "Interval of the table in ms", 50, 60000),
        choice("wren/settings/recreadyTableColor", "Colour while ready", tableColours()),
        choice("wren/settings/recordingTableColor", "Colour while recording", tableColours()),
        choice("wren/settings/memoryTableColor", "Colour of the memory mode", tableColours()),
        box("alert/wren/multiheadlockalert", "Ask before locked heads are changed"),
    };
}

}  // namespace

const QList<PreferencePage>& preferencePages() {
    static const QList<PreferencePage> pages = {{"s_general", generalFields()},
                                                {"s_display", displayFields()},
                                                {"s_record", recordingFields()},
                                                {"s_io", ioFields()},
                                                {"s_table", tableFields()}};
    return pages;
}
