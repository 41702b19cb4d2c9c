#pragma once

/// Bounds of a file. One that passes them holds no item, and costs no more time and memory than one that keeps to them.
/// A camera's list with 256 letters in each field is some 165 KB.
namespace CustomInfoBounds {
constexpr int FileBytes = 1024 * 1024;
/// One text, tag, comment or document type as it stands in the file. Those that are a little longer may be read too.
constexpr int TokenBytes = 16 * 1024;
/// Of one element: they take time by the square of their number.
constexpr int Attributes = 64;
constexpr int Depth = 64;
/// Not the 64 that a camera takes: the table reads the first 64 of a longer file.
constexpr int Items = 1024;
}  // namespace CustomInfoBounds
