#pragma once

/// The table's lock on a camera's parameters. GUI thread.
class DOC_Lock {
public:
    virtual ~DOC_Lock() = default;

    /// A `zeb::RecordStatus`.
    virtual int getRecordState() const = 0;
    /// Whether nobody may change the camera's parameters.
    virtual bool isParamLocked() const = 0;
    /// A head that is ready or records is not unlocked.
    virtual void setParamLock(bool lock) = 0;
};
