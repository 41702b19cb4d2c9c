#pragma once

#include "NameFamilies.h"

#include <QDateTime>
#include <QSet>
#include <QStringList>

#include <vector>

struct SaveTrack;

/// What is drawn over a saved picture: lines, each of some items that are known of it. Any thread.
struct DrawnInformation {
    enum Item { FileName, CameraName, FrameNumber, Time, RecordRate, ShutterSpeed, Resolution, Date, Comment };

    std::vector<std::vector<Item>> lines;
    /// Times are told as on a clock, "-00:00:00.050000", else in seconds.
    bool isTimeOfClock = false;

    /// Of frame `index` of a track whose file is called `file`, on `date`; a line of which nothing is known is left
    /// out. Of a layout all that its cameras have, without those at the places `lost`, each text once.
    QStringList texts(const SaveTrack& track, int index, const QSet<int>& lost, const QString& file,
                      const QDateTime& date) const;

    /// The items as the preferences name them, in their order; keys of the lines, and of the form of times, which is
    /// "clock" or "seconds".
    static const QStringList& itemNames();
    static constexpr int Lines = 7;
    static QString lineKey(int line);
    static constexpr auto TimeFormKey = "saveinfo/timecode";
    /// The items of the line that a preference tells.
    static std::vector<Item> lineOf(const QString& text);

    /// As the preferences choose: none unless those of `family`, as "export/", want it; and seven lines that are the
    /// same for all families.
    static DrawnInformation chosen(const PrefReader& pref, const QString& family);
};
