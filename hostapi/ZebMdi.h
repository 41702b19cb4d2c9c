#pragma once

/// The windows in which the host shows its images. GUI thread; nothing here throws.
class ZebMdi {
public:
    virtual ~ZebMdi() = default;

    /// Number of windows; `kind` 0 counts those of any kind, 2 those of images.
    virtual int countMdiWindow(bool visible, int kind) const = 0;
};
