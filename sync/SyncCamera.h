#pragma once

#include "ZebTypes.h"

#include <QString>

class DOC_Interface;

/// What a camera's exposure is to a signal that it shares with others.
enum class ExposureClass { A, B, N };

/// What decides a camera's place on the common signal.
struct SyncCamera {
    DOCKEY key = zeb::NoDocKey;
    /// IPv4, dotted text.
    QString address;
    ExposureClass exposure = ExposureClass::N;
    bool delayed = false;

    /// Asks the camera; may throw what the document throws.
    static SyncCamera read(DOC_Interface& doc);
    static QList<SyncCamera> readAll(const DocList& docs);
};

/// Class A when the camera is one that leads, otherwise B when its exposure comes with a delay.
ExposureClass exposureClassOf(int timingClass, int delayClass);

/// Whether cameras with and without a delay are among them.
bool areMixed(const QList<SyncCamera>& cameras);

/// Whether `mode` (`zeb::TriggerMode`) is a post-trigger mode: the recording runs before the trigger comes.
bool isPostTrigger(int mode);

/// An IPv4 text as a number, its first octet the highest.
quint32 addressNumber(const QString& address);
