#include "PreferencePages.h"

namespace {

QList<PreferenceChoice> tableColours() {
    return {{QStringLiteral("red"), "Red"},       {QStringLiteral("green"), "Green"},
            {QStringLiteral("yellow"), "Yellow"}, {QStringLiteral("orange"), "Orange"},
            {QStringLiteral("blue"), "Blue"},     {QStringLiteral("skyblue"), "Sky blue"}};
}

QList<PreferenceField> generalFields() {
    return {
        {QStringLiteral("env/style"),
         "Style",
         QStringLiteral("light"),
         {{QStringLiteral("light"), "Light"}, {QStringLiteral("dark"), "Dark"}}},
        {QStringLiteral("env/language"),
         "Language (from the next start on)",
         QStringLiteral("en"),
         {{QStringLiteral("en"), "English"}, {QStringLiteral("ja"), "Japanese"}}},
        {QStringLiteral("customize/unitSystem"), "Units of length", 1, {{1, "Metric"}, {0, "Imperial"}}},
        {QStringLiteral("devicemanager/connectedCameraOnlyShowing"), "List connected cameras only", false},
    };
}

QList<PreferenceField> displayFields() {
    return {
        {QStringLiteral("display/ShutterSpeed"), "Shutter speed", 1, {{1, "As a fraction"}, {2, "As a time"}}},
        {QStringLiteral("display/DisplayWithRealBitDepth"), "Show images in their real bit depth", false},
        {QStringLiteral("display/recordRateInsertDelimiter"), "Group the digits of frame rates", false},
        {QStringLiteral("display/frameInsertDelimiter"), "Group the digits of frame numbers", false},
    };
}

QList<PreferenceField> recordingFields() {
    return {
        {QStringLiteral("recording/AutoDownload"), "Save after recording", true},
        {QStringLiteral("recording/useTriggerTest"), "Offer the trigger test", true},
        {QStringLiteral("recording/RecAllConnectedCamera"), "Record on all connected cameras", false},
    };
}

QList<PreferenceField> ioFields() {
    return {
        {QStringLiteral("sync/external"), "Synchronise on an external signal", false},
        {QStringLiteral("sync/generator/address"), "Address of the signal generator", QString()},
        {QStringLiteral("sync/lport/ipaddress"), "Addresses of Sync Hubs, with commas between", QString()},
    };
}

QList<PreferenceField> tableFields() {
    return {
        {QStringLiteral("wren/table/interval"), "Interval of the table in ms", 500, {}, 50, 60000},
        {QStringLiteral("wren/settings/recreadyTableColor"), "Colour while ready", QStringLiteral("green"),
         tableColours()},
        {QStringLiteral("wren/settings/recordingTableColor"), "Colour while recording", QStringLiteral("orange"),
         tableColours()},
        {QStringLiteral("wren/settings/memoryTableColor"), "Colour of the memory mode", QStringLiteral("skyblue"),
         tableColours()},
        {QStringLiteral("alert/wren/multiheadlockalert"), "Ask before locked heads are changed", true},
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
