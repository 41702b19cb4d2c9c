#pragma once

/// What the table and the dialog of custom information do differently with the same file. An item is a map of `name`,
/// `value`, `unit` and flags.
struct CustomInfoForm {
    /// Key of the flag that the item is shown.
    const char* shownKey;
    /// Whether a root `job` makes a job file of the whole, or its children can be of either form.
    bool rootDecides;
    /// Whether `usefilename` is read.
    bool readsFileNameFlag;
    /// Whether it is written as true for all, or for the items that are shown.
    bool allInFileNames;
};

constexpr CustomInfoForm TableForm{"display", false, true, false};
constexpr CustomInfoForm DialogForm{"selected", true, false, true};

/// Bounds of a file. One that passes them holds no item, and costs no more time and memory than one that keeps to them.
/// A camera's list with 256 letters in each field is some 165 KB.
namespace CustomInfoBounds {
constexpr int FileBytes = 1024 * 1024;
/// One text, tag, comment or document type as it stands in the file. Those that are a little longer may be read too.
constexpr int TokenBytes = 16 * 1024;
/// Of one element: they take time by the square of their number.
constexpr int Attributes = 64;
constexpr int Depth = 64;
/// A camera takes 64.
constexpr int Items = 1024;
}  // namespace CustomInfoBounds
