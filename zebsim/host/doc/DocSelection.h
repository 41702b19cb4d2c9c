#pragma once

#include "ZebTypes.h"

class Camera;
class CameraBank;

/// Which cameras are selected, and which of these is the current one: the first that was selected and still is. In file
/// mode the same of the recordings that are open. GUI thread.
class DocSelection {
public:
    /// Must outlive the object.
    explicit DocSelection(const CameraBank& cameras) : m_cameras(cameras) {}

    /// `zeb::NoDocKey` when none is selected.
    DOCKEY current() const;
    bool isCurrent(DOCKEY key) const { return isSelected(key) && key == current(); }
    /// Of a selected camera only.
    void setCurrent(DOCKEY key);
    /// No camera is the current one before the next is asked for.
    void forget() { m_current = zeb::NoDocKey; }

    void select(Camera& camera);
    void deselect(Camera& camera);
    /// These alone.
    void selectOnly(const DocKeyList& keys);
    void selectAll();

private:
    bool isSelected(DOCKEY key) const;
    DOCKEY& kept() const;

    const CameraBank& m_cameras;
    /// Of the cameras, and of the recordings in files. They may have lost their selection meanwhile.
    mutable DOCKEY m_current = zeb::NoDocKey;
    mutable DOCKEY m_currentFile = zeb::NoDocKey;
};
