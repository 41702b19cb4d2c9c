#pragma once

/// The table's lock on a camera's parameters. GUI thread; loops where it says so, as `DOC_Interface` tells.
class DOC_Lock {
public:
    virtual ~DOC_Lock() = default;

    /// A `zeb::RecordStatus`. Loops.
    virtual int getRecordState() const = 0;
    /// Whether nobody may change the camera's parameters. Loops.
    virtual bool isParamLocked() const = 0;
    /// A head that is ready or records is not unlocked.
    virtual void setParamLock(bool lock) = 0;
};
