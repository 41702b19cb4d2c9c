#include "SyncMembers.h"

#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "InputPorts.h"
#include "Record.h"
#include "TextKey.h"
#include "ZebHost.h"

#include <QHash>

namespace syncmembers {

namespace {

const QString NoInput = QStringLiteral("-");

/// Where the polarity of the sync input stands, for cameras that have it apart.
constexpr int PolarityPort = 1;

QString signalName(int signal) {
    static const QHash<int, QString> names{{zeb::SignalOff, TextKey("OFF")},
                                           {zeb::SignalOnCamPos, TextKey("ON CAM POS")},
                                           {zeb::SignalOnCamNeg, TextKey("ON CAM NEG")},
                                           {zeb::SignalOnOthersPos, TextKey("ON OTHERS POS")},
                                           {zeb::SignalOnOthersNeg, TextKey("ON OTHERS NEG")},
                                           {zeb::SignalEventPos, TextKey("EVENT POS")},
                                           {zeb::SignalEventNeg, TextKey("EVENT NEG")},
                                           {zeb::SignalTrigPos, TextKey("TRIG POS")},
                                           {zeb::SignalTrigNeg, TextKey("TRIG NEG")},
                                           {zeb::SignalReadyPos, TextKey("READY POS")},
                                           {zeb::SignalReadyNeg, TextKey("READY NEG")},
                                           {zeb::SignalSyncPos, TextKey("SYNC POS")},
                                           {zeb::SignalSyncNeg, TextKey("SYNC NEG")},
                                           {zeb::SignalOnCam, TextKey("ON CAM")},
                                           {zeb::SignalOnOthers, TextKey("ON OTHERS")},
                                           {zeb::SignalNormallyOpen, TextKey("NORMALLY OPEN")},
                                           {zeb::SignalNormallyClose, TextKey("NORMALLY CLOSE")},
                                           {zeb::SignalPowerOffPos, TextKey("POWER OFF POS")},
                                           {zeb::SignalPowerOffNeg, TextKey("POWER OFF NEG")},
                                           {zeb::SignalRemoteOn, TextKey("REMOTE ON")}};
    return names.value(signal);
}

/// The signal that source and polarity make together; the source itself for any other polarity.
int withPolarity(int source, int polarity) {
    const bool positive = polarity == zeb::SignalSyncPos;
    if (!positive && polarity != zeb::SignalSyncNeg) {
        return source;
    }
    switch (source) {
        case zeb::SignalOnCam:
            return positive ? zeb::SignalOnCamPos : zeb::SignalOnCamNeg;
        case zeb::SignalOnOthers:
            return positive ? zeb::SignalOnOthersPos : zeb::SignalOnOthersNeg;
        default:
            return source;
    }
}

QMap<int, int> portsOf(const DOC_Control& camera) {
    QMap<int, int> ports;
    int index = 0;
    for (const int port : camera.getPortList(1)) {
        ports.insert(port, camera.getPortSignal(++index));
    }
    return ports;
}

QString shown(const QString& name, const ZebHost& host) {
    return name.isEmpty() || name == NoInput ? name : host.translate(name);
}

}  // namespace

InputNames inputNames(int cameraType, const QMap<int, int>& ports) {
    const InputPorts inputs = InputPorts::of(cameraType);
    const auto nameAt = [&ports](int port, bool refined) {
        if (!ports.contains(port)) {
            return NoInput;
        }
        const int signal = ports.value(port);
        return signalName(refined ? withPolarity(signal, ports.value(PolarityPort)) : signal);
    };
    return {nameAt(inputs.externalSync, inputs.refined), nameAt(inputs.triggerIn, false),
            nameAt(inputs.triggerSwIn, false)};
}

void add(Record& record, DOC_Interface& doc, const ZebHost& host, bool connected) {
    const InputNames names =
        connected ? inputNames(doc.control().getCameraType(), portsOf(doc.control())) : InputNames();
    record.setText(QLatin1String("externalSync"), shown(names.externalSync, host));
    record.setText(QLatin1String("triggerIn"), shown(names.triggerIn, host));
    record.setText(QLatin1String("triggerSwIn"), shown(names.triggerSwIn, host));
}

}  // namespace syncmembers
