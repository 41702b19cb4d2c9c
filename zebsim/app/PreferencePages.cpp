#include "PreferencePages.h"

#include "TextKey.h"
#include "Translator.h"

#include <QLocale>

namespace {

PreferenceField box(const char* key, const QString& label) {
    return {QLatin1String(key), label, PreferenceField::Box};
}

PreferenceField number(const char* key, const QString& label, int lowest, int highest) {
    return {QLatin1String(key), label, PreferenceField::Number, {}, lowest, highest};
}

PreferenceField line(const char* key, const QString& label) {
    return {QLatin1String(key), label, PreferenceField::Text};
}

PreferenceField choice(const char* key, const QString& label, const QList<PreferenceChoice>& choices) {
    return {QLatin1String(key), label, PreferenceField::Choice, choices};
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
        line("usercustom/cameraNameFilePath", TextKey("File with names for cameras (CSV)")),
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

QList<PreferenceField> savingFields() {
    return {
        line("save/fixedgroupdir", TextKey("Name of every group folder")),
        line("save/substitutefolder", TextKey("Folder for all files, whatever their own")),
        line("tal2/folder", TextKey("Folder of the program TAL2")),
    };
}

QList<PreferenceField> ioFields() {
    return {
        box("wren/settings/deviceSpeedPlaying", TextKey("Play each camera in step with the common signal")),
        box("alert/setsynchronization", TextKey("Remind of the wiring after a synchronisation")),
    };
}

QList<PreferenceField> tableFields() {
    return {
        number("wren/table/interval", TextKey("Interval of the table in ms"), 50, 60000),
    };
}

}  // namespace

const QList<PreferencePage>& preferencePages() {
    static const QList<PreferencePage> pages = {{TextKey("s_general"), generalFields()},
                                                {TextKey("s_display"), displayFields()},
                                                {TextKey("s_record"), recordingFields()},
                                                {TextKey("s_save"), savingFields()},
                                                {TextKey("s_io"), ioFields()},
                                                {TextKey("s_table"), tableFields()}};
    return pages;
}
