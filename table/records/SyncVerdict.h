#pragma once

#include <QString>

#include <optional>

class DOC_Interface;
class SignalSources;
class ZebHost;
struct SyncState;

/// What the table can tell of a camera's place on the common signal. Asks host, sources and cameras when it is made
/// to tell: for one camera at a time, by the user's wish. GUI thread; does not throw.
class SyncVerdict {
public:
    SyncVerdict(ZebHost& host, SyncState& state, DOC_Interface& doc) : m_host(host), m_state(state), m_doc(doc) {}

    /// JSON of texts in the user's language, empty where there is nothing to say: `check` what keeps the camera, else
    /// the first other one, from the signal; `follows` where the signal comes from; `rate` by how much the camera's
    /// rate is above or below it; `recorded` the frames and rate of what it holds. What can't be asked tells why.
    QString toJson() const;

private:
    QString check() const;
    QString follows() const;
    QString sourceText() const;
    QString rate() const;
    QString recorded() const;
    /// Frames a second that the camera should record with; nothing without a signal.
    std::optional<int> reference() const;
    /// Null without one, and when it has gone.
    DOC_Interface* master() const;
    QString rateText(unsigned int rate) const;
    /// As "1000 fps, 500 above the signal".
    QString comparedText(unsigned int rate) const;

    ZebHost& m_host;
    SyncState& m_state;
    DOC_Interface& m_doc;
};
