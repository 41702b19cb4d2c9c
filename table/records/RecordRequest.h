#pragma once

#include <QString>

#include <optional>

/// Tabs of the page by their numbers.
enum RecordTab {
    CameraInfoTab = 0,
    LiveControlTab = 1,
    SyncTab = 2,
    IrigTab = 3,
    PluginTab = 4,
    MemoryInfoTab = 5,
    MemoryPluginTab = 6
};

/// Which cameras a page may ask for.
enum RecordFilter { ShowAll = 0, ShowConnected = 1, ShowDisconnected = 2 };

/// What the page asks for.
struct RecordRequest {
    /// Empty: all groups.
    QString group;
    int filter = ShowAll;
    int tab = CameraInfoTab;
    /// Set by a page that takes short replies: the number of the last one that it has, 0 for none. See `ShortReply`.
    std::optional<int> taken;

    /// What is missing or malformed stays at its default.
    static RecordRequest parse(const QString& json);
};
