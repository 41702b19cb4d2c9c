#pragma once

#include <QMap>
#include <QString>

class DOC_Interface;
class Record;
class ZebHost;

/// Members of a row of the sync tab: the signals on the camera's inputs.
namespace syncmembers {

/// Names of the signals, to be translated; "-" for an input that the camera does not have, empty for a signal that
/// has no name.
struct InputNames {
    QString externalSync;
    QString triggerIn;
    QString triggerSwIn;
};

/// `ports` has the `zeb::PortSignal` on each port of the camera, by the port's number.
InputNames inputNames(int cameraType, const QMap<int, int>& ports);

void add(Record& record, DOC_Interface& doc, const ZebHost& host, bool connected);

}  // namespace syncmembers
