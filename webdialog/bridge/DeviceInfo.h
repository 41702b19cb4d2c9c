#pragma once

#include <QVariant>

class ZebHost;

/// Preference: whether lists of devices show only those that are connected.
constexpr auto ConnectedCameraOnlyPref = "devicemanager/connectedCameraOnlyShowing";

/// Appends to `devices` what a list of devices shows of each document, one map each. With `isMinilist` the user may
/// have chosen to see only the connected ones in live mode.
///
/// A document that throws ends it: its entry stands with what has been read and without the mark of a device that was
/// found, and the exception goes on to the caller.
void appendDeviceInfo(QVariantList& devices, ZebHost& host, bool isMinilist);
