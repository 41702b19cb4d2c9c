#pragma once

/// The table's lock on a camera's parameters. GUI thread.
class DOC_Lock {
public:
    virtual ~DOC_Lock() = default;

    /// 0 none, 1 CTS ready, 2 ready, 3 recording.
    virtual int getRecordState() const = 0;
    virtual bool isParamLocked() const = 0;
    /// A head in record state 2 or 3 is not unlocked.
    virtual void setParamLock(bool lock) = 0;
};
