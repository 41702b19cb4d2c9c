#pragma once

/// What the table and the dialog of custom information do differently with the same file. An item is a map of `name`,
/// `value`, `unit` and flags.
struct CustomInfoDialect {
    /// Key of the flag that the item is shown.
    const char* shownKey;
    /// Whether a root `job` makes a job file of the whole, or its children can be of either form.
    bool rootDecides;
    /// Whether `usefilename` is read.
    bool readsFileNameFlag;
    /// Whether it is written as true for all, or for the items that are shown.
    bool allInFileNames;
};

constexpr CustomInfoDialect TableDialect{"display", false, true, false};
constexpr CustomInfoDialect DialogDialect{"selected", true, false, true};
