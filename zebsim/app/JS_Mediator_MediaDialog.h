#pragma once

#include "JS_Mediator_FileDialog.h"

class SimHost;

/// What the page of the storage media can ask and do. GUI thread.
class JS_Mediator_MediaDialog : public JS_Mediator_FileDialog {
    Q_OBJECT

public:
    explicit JS_Mediator_MediaDialog(SimHost& host);

public Q_SLOTS:
    /// A JSON array of the media that are there: `kind`, 0 for an SD card, `recid` in the list of its kind, `type`,
    /// `drive`, `slot`, `name`, `drivename`, `folder`, whether it is `open`, `locked` and `protected`; `kindLabel` and
    /// whether such a medium is `formattable` here and can have a password, `hasPassword`.
    QString getMedia();
    /// Room on one of them, as JSON: `used` and `capacity` in bytes, as texts too, as `usedLabel`.
    QString getUse(int kind, int type, int drive, int slot);
    /// Its recordings are documents no more.
    void closeMedium(int kind);
    /// The dialog that puts one in.
    void putIn();

private:
    SimHost& m_simHost;
};
