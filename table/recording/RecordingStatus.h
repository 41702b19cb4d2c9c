#pragma once

class QJsonObject;
class ZebHost;

/// Where the recording of the live cameras stands, asked anew from the host at each call. May throw what the host
/// throws.
class RecordingStatus {
public:
    explicit RecordingStatus(ZebHost& host) : m_host(host) {}

    /// A `zeb::RecordStatus`.
    int state() const;
    /// Adds state and label of the record button to `status`, in live mode only. What was added before a failure stays.
    void addTo(QJsonObject& status) const;
    /// Whether there is no recording, whatever was told of its end: as after a camera that came into the table ready
    /// and has gone again. Live mode only. A camera that does not answer may record.
    bool isOver() const;

private:
    ZebHost& m_host;
};
