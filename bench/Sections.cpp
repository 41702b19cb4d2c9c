#include "Sections.h"

namespace {

constexpr int Few = 64;
constexpr int Many = 1024;

constexpr Quantity table(int cameras, const char* name) {
    return {"table", cameras, name};
}

constexpr Quantity start(int cameras, const char* name) {
    return {"start", cameras, name};
}

constexpr Quantity save(const char* name) {
    return {"save", 1, name};
}

constexpr Quantity effect(const char* name) {
    return {"effects", 1, name};
}

/// To all over one.
Line command(const char* what, const char* measurement, const char* name, const char* oneName) {
    return {what, {measurement, Few, name}, {measurement, Few, oneName}, 1.3, 2};
}

Section requestSection() {
    return {
        "What a refresh needs in any case: milliseconds, 1,024 cameras, tab of the live control.\n"
        "C is one plain call of getRecords, the making of its text included; J is JSON.parse of that text; F is the\n"
        "markup of the visible rows, set at once in the frame of the grid and laid out.",
        {{"C", table(Many, "call")}, {"J", table(Many, "parse")}, {"F", table(Many, "markup")}}};
}

Section refreshSection() {
    return {
        "A full refresh, without the fetching of its records, which is timed within it. Every value that a row shows\n"
        "has changed, and the lock of one row in ten. Its floor is the restyling of elements: one that changes its\n"
        "look costs about what a new one does, so where all of them do, F can't be got far under.",
        {{"same rows, over F", table(Many, "sameRows"), table(Many, "markup"), 0.4, 0.6},
         {"other rows, over F", table(Many, "otherRows"), table(Many, "markup"), 0.9, 1.2},
         {"same rows, 1,024 over 64 cameras", table(Many, "sameRows"), table(Few, "sameRows"), 1.2, 1.8},
         {"other rows, 1,024 over 64 cameras", table(Many, "otherRows"), table(Few, "otherRows"), 1.2, 1.8}}};
}

Section tickSection() {
    const Quantity plain = table(Many, "callAndParse");
    return {
        "A tick of 1,024 cameras as a whole, with its layout, over the call and the parsing that a page which\n"
        "remembers nothing has to make.",
        {{"no shown value changed, but the text, over C + J", table(Many, "tickNoneShown"), plain, 0.5, 0.7},
         {"a tenth of the cameras changed, over C + J", table(Many, "tickTenth"), plain, 0.55, 0.8},
         {"the same text as before, over C", table(Many, "tickSameText"), table(Many, "call"), 1, 1.3},
         {"all of them changed, over C + J", table(Many, "tickAll"), plain},
         {"a tenth changed, 1,024 over 64 cameras", table(Many, "tickTenth"), table(Few, "tickTenth")}}};
}

Section truthSection() {
    const Quantity call = table(Many, "call");
    return {
        "What the table tells of 1,024 cameras beside their rows, over C: the marks of the batch row, where rows have\n"
        "other values; what all of them offer of a list, when it is opened; the line with how all of them stand and\n"
        "what a change of all has come to.",
        {{"marks, over C", table(Many, "marks"), call, 0.03, 0.1},
         {"union of a list, over C", table(Many, "offers"), call, 0.06, 0.1},
         {"the line's call, over C", table(Many, "status"), call, 0.05, 0.1}}};
}

Section textSection() {
    return {"The text of 1,024 cameras in C++, without the host's answers, over QJsonDocument writing the same text.",
            {{"the text", {"text", Many, "build"}, {"text", Many, "write"}, 1.2, 1.6},
             {"the host's answers, ms", {"text", Many, "ask"}}}};
}

Section startSection() {
    return {
        "Opening, wall-clock: from the press of the button to the first painted rows, the fade not counted, over a\n"
        "page with the same libraries and the markup of the visible rows.",
        {{"64 cameras", start(Few, "open"), start(Few, "plain"), 1.35, 1.5},
         {"1,024 cameras", start(Many, "open"), start(Many, "plain"), 1.5, 1.7}}};
}

Section commandSection() {
    return {"A command to 64 cameras that take 50 ms each, wall-clock, over the same to one of them.",
            {command("connect", "commands", "connect", "connectOne"),
             command("record rate", "commands", "rate", "rateOne"),
             command("arm", "commands", "arm", "armOne"),
             {"lock, ms; it asks no camera, so that a ratio says nothing", {"commands", Few, "lock"}},
             command("default settings", "settings", "load", "loadOne"),
             {"default settings, over one camera after the other",
              {"settings", Few, "load"},
              {"settings", Few, "loadEach"},
              0.03,
              0.1},
             command("save settings to a file", "settings", "saveSettings", "saveSettingsOne"),
             command("load settings from a file", "settings", "loadSettings", "loadSettingsOne")}};
}

Section effectSection() {
    const Quantity plain = effect("plain");
    return {"A frame of 1,024 x 1,024 with the effect of an image plug-in, over one without.",
            {{"levels", effect("lut"), plain, 1.5, 2},
             {"false colours", effect("pseudo"), plain, 1.5, 2},
             {"sharpening", effect("filter"), plain, 1.5, 2},
             {"median", effect("median"), plain, 1.5, 2},
             {"mosaic", effect("mosaic"), plain, 1.5, 2}}};
}

Section saveSection() {
    return {
        "Saving pictures of 1,024 x 1,024, wall-clock with the wait for the disk, over ffmpeg writing the same ones\n"
        "with as many threads.",
        {{"PNG, smooth", save("png"), save("pngOther"), 0.5, 0.8},
         {"PNG, noisy", save("pngNoisy"), save("pngNoisyOther"), 0.5, 0.8},
         {"TIFF by LZW, smooth", save("tiff"), save("tiffOther"), 1, 1.5},
         {"TIFF by LZW, noisy", save("tiffNoisy"), save("tiffNoisyOther"), 1, 1.5},
         {"JPEG, smooth", save("jpeg"), save("jpegOther"), 1, 1.5},
         {"JPEG, noisy", save("jpegNoisy"), save("jpegNoisyOther"), 1, 1.5},
         {"eight cameras of 50 ms a frame, over what one has to wait", save("slow"), save("slowWait"), 1.1, 1.6},
         {"longest turn of the event loop meanwhile, ms", save("turn"), {}, 30, 100}}};
}

Section memorySection() {
    return {"Memory of the process, MiB.",
            {{"64 cameras, after 10,000 ticks less after 1,000", {"growth", Few, "growth"}, {}, 5, 12},
             {"64 cameras, after 10,000 ticks", {"growth", Few, "end"}},
             {"growth while 64,000 frames are saved", {"saveMemory", Few, "growth"}, {}, 50, 100}}};
}

}  // namespace

QVector<Section> reportSections() {
    return {requestSection(), refreshSection(), tickSection(),   truthSection(), textSection(),
            startSection(),   commandSection(), effectSection(), saveSection(),  memorySection()};
}
