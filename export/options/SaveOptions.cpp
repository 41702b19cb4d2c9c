#include "SaveOptions.h"

#include <QHash>
#include <QStandardPaths>
#include <QStringList>

#include <cstring>

namespace {

QVariant text(const char* value) {
    return QString::fromLatin1(value);
}

QVariant picturesFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

/// Numbers and time in a name, as "groupdir", with as many digits.
QList<SaveOption> additionsTo(const char* families, const char* name, bool hasNumber, int camera, int head) {
    const QString suffix = QLatin1String(name) % QStringLiteral("add");
    const QString number = suffix % QStringLiteral("number");
    return {
        {families, number, hasNumber},
        {families, number % "format", text("manual")},
        {families, number % "cameranodigits", camera},
        {families, number % "headnodigits", head},
        {families, number % "sessionnodigits", 3},
        {families, number % "manualcameranodigits", camera},
        {families, number % "manualheadnodigits", head},
        {families, number % "manualsessionnodigits", 3},
        {families, suffix % "time", false},
        {families, suffix % "timeformat", text("yyyyMMdd-HHmmss")},
    };
}

/// A folder of its own, as "groupdir".
QList<SaveOption> directory(const char* families, const char* name) {
    const QString suffix = QLatin1String(name);
    // It is one for all cameras.
    return QList<SaveOption>{
               {families, suffix, false},
               {families, suffix % "name", text("")},
               {families, suffix % "asfilename", false},
               {families, suffix % "asfilenameincludeoption", false},
           } +
           additionsTo(families, name, false, 0, 0);
}

QList<SaveOption> names() {
    return QList<SaveOption>{
               {"ECSRL", "dir", picturesFolder()},
               {"ECSRL", "dirasoriginal", false},
               {"ECSRL", "filename", text("")},
               {"ECSRL", "filenameadddetail", true},
               {"ECSRL", "filenameadddetails", text("name,number")},
               {"ECSRL", "filenameadddetailsconnect", text("_")},
               {"ECSRL", "filenameaddtextvalue", text("")},
               {"ECSRL", "filenameasoriginal", false},
               {"ECSRL", "filenameaspartitionname", false},
               {"ECSRL", "filenameseqdigits", 5},
               {"ECSRL", "filenameusecustom", false},
               {"ECSRL", "filenameusecustomfromtarget", false},
               {"ECSRL", "filenameusecustomfromtargetkey", -1},
               {"ECSRL", "filenameusecustomincludeunit", false},
           } +
           additionsTo("ECSRL", "filename", true, 2, 1) + directory("ECSRL", "subdir") + directory("ECSR", "groupdir");
}

/// Of a kind of video file, as "mp4".
QList<SaveOption> video(const char* kind, const char* codec) {
    const QString suffix = QLatin1String(kind) % QStringLiteral("/");
    return {
        {"ECL", suffix % "codec", text(codec)}, {"ECL", suffix % "crf", 18},
        {"ECL", suffix % "fourcc", text("")},   {"ECL", suffix % "framerate", 30.0},
        {"ECL", suffix % "quality", 90},        {"ECL", suffix % "qualitypreset", text("medium")},
    };
}

/// Of a kind of raw file, as "raww".
QList<SaveOption> raw(const char* families, const char* kind) {
    const QString suffix = QLatin1String(kind) % QStringLiteral("/");
    return {{families, suffix % "depth", 16}, {families, suffix % "lower", false}};
}

QList<SaveOption> formats() {
    return QList<SaveOption>{
               {"ECSL", "format", text("png")},
               {"ECSL", "jpeg/compressquality", 95},
               {"ECSL", "png/depth", 8},
               {"ECSL", "png/lower", false},
               {"ECSL", "png/priority", text("speed")},
               {"ECSL", "tiff/depth", 8},
               {"ECSL", "tiff/lower", false},
               {"ECSL", "tiff/packbits", false},
               {"ECL", "tiff/multipage", false},
               {"EC", "tiff/bayersave", false},
               {"ECL", "mp4/lossless", false},
               {"EC", "raww/bayersave", false},
               {"EC", "mraw/bayersave", false},
               {"EC", "mraw/divide", false},
               {"EC", "mraw/divideframe", 1000},
           } +
           video("avi", "MJPEG") + video("mov", "H264") + video("mp4", "H264") + raw("EC", "raww") + raw("EC", "mraw") +
           raw("E", "graw");
}

/// What is saved of the images, and what beside them.
QList<SaveOption> contents() {
    return {
        {"ECRL", "saveinfo", false},
        {"ERL", "skipsave", false},
        {"ERL", "skipsaveframe", 1},
        // As long as that many frames last.
        {"ERL", "skipsavemsec", {}},
        {"ERL", "skipunit", 0},
        {"EC", "saveinf", true},
        {"EC", "savethumbnail", false},
        {"EC", "savethumbnailaddtextvalue", text("_thumb")},
        {"EC", "withcsv", false},
        {"EC", "csv/dir", picturesFolder()},
        {"EC", "csvtype", 0},
        {"EC", "daqpath", text("")},
        {"EC", "savemme", false},
        {"EC", "savemmepath", text("")},
        {"EC", "savemmesameexport", true},
        {"EC", "media", text("file")},
        {"EC", "fd/dataname", text("")},
        {"EC", "fd/datanameaddnumber", false},
        {"ER", "savecorrect", false},
        {"S", "cihx", false},
        {"S", "notify", false},
        {"S", "overwrite", false},
        {"R", "importdir", text("")},
        {"R", "importfilter", text("")},
        {"R", "templatepath", text("")},
    };
}

QList<SaveOption> jobs() {
    QList<SaveOption> dataName = additionsTo("E", "fd/dataname", false, 0, 0);
    dataName.removeFirst();  // conversions have that too
    return QList<SaveOption>{
               {"E", "fd/datanameasoriginal", false},
               {"E", "backgroundconverting", false},
               {"E", "executetal2", false},
               {"E", "inf_comments", text("")},
               {"E", "inf_date", text("")},
               {"E", "inf_engineer", text("")},
               {"E", "inf_project", text("")},
               {"E", "inf_technician", text("")},
               {"E", "inf_testno", text("")},
               {"E", "inf_testtype", text("")},
               {"E", "inf_testtypeno", text("")},
               {"E", "multipathdevicelist", text("")},
               {"E", "multipathlist", text("")},
               {"E", "savescale", false},
               {"E", "sd/slot", 0},
               {"E", "singlepath", true},
           } +
           dataName;
}

QList<SaveOption> layouts() {
    return {
        // Side by side in a grid, a row or a column; of so many columns, 0 for as many as make it square.
        {"L", "combinedmethod", text("grid")},
        {"L", "count", 0},
        // Each image keeps the ratio of its sides.
        {"L", "combinedmethodaspect", true},
        // The size of the whole, in pixels, chosen or as the cameras give it; and what a reset goes back to.
        {"L", "combinedresolutionspecify", false},
        {"L", "combinedresolutionspecifywidth", 1920},
        {"L", "combinedresolutionspecifyheight", 1080},
        {"L", "combinedresolutionwidth", 0},
        {"L", "combinedresolutionheight", 0},
        {"L", "combinedresolutionresetwidth", 1920},
        {"L", "combinedresolutionresetheight", 1080},
        // Names and times are drawn.
        {"L", "info", true},
        // Before its first frame and after its last a camera shows that, "hold", or nothing, "blank".
        {"L", "mode", text("hold")},
        {"L", "templatedir", text("")},
    };
}

/// Where a family begins with other values. Of the many cameras of a layout none stands in the name; what is converted
/// keeps its own.
const QHash<QString, QVariant>& ownValues() {
    static const QHash<QString, QVariant> values = {
        {"convert/filenameadddetail", false},
        {"convert/filenameasoriginal", true},
        {"layout/filename", text("Layout")},
        {"layout/filenameadddetails", text("number")},
        {"layout/filenameaddnumbercameranodigits", 0},
        {"layout/filenameaddnumberheadnodigits", 0},
        {"layout/filenameaddnumbermanualcameranodigits", 0},
        {"layout/filenameaddnumbermanualheadnodigits", 0},
        {"snap/filenameaddtime", true},
    };
    return values;
}

}  // namespace

const QList<SaveOption>& saveOptions() {
    static const QList<SaveOption> options = names() + formats() + contents() + jobs() + layouts();
    return options;
}

QList<SaveOptionKey> saveOptionKeys() {
    static const QHash<char, QString> families = {
        {'E', "export/"}, {'C', "convert/"}, {'S', "snap/"}, {'R', "report/"}, {'L', "layout/"}};
    QList<SaveOptionKey> keys;
    for (const SaveOption& option : saveOptions()) {
        for (const char* family = option.families; *family != '\0'; ++family) {
            const QString key = families[*family] % option.suffix;
            keys.append({key, ownValues().value(key, option.value)});
        }
    }
    return keys;
}
