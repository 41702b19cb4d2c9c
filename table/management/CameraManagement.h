#pragma once

#include "ZebTypes.h"

#include <QString>

class GatheredFailures;
class ZebHost;
struct TableState;

/// Which cameras are connected and selected. May throw what the host throws; a camera that is gone is skipped.
class CameraManagement {
public:
    CameraManagement(ZebHost& host, TableState& state) : m_host(host), m_state(state) {}

    /// The address that was searched last; empty outside live mode.
    QString getSearchAddress() const;

    /// Searches, in live mode only: at the addresses that differ from `address` in the last octet, in the whole
    /// network, and once more for the cameras that are known. A camera that is new is prepared as any that connects.
    void searchCamera(const QString& address);
    void discover();
    void update();
    /// Forgets all cameras in live mode, if the user agrees.
    void deleteAll();

    /// Asks the user before `keys` are disconnected. False outside live mode, and after a failure, which is logged.
    bool confirmDisconnect(const DocKeyList& keys) const;
    /// What the user is asked: heads of one device go together, else it counts how many cameras are not locked.
    static QString disconnectQuestionFor(bool anyMultiHead, int unlocked);

    /// Connects those of `keys` that are not connected, or disconnects those that are and that no lock keeps.
    /// `force`, the host's own road, works in every mode and disconnects locked cameras too.
    void connect(const DocKeyList& keys, bool connect, bool force);

    /// False when nothing may be selected now: in file mode and while the host closes.
    bool select(const DocKeyList& keys, bool select);

    /// In live mode a locked camera keeps its name. Nothing in file mode.
    void setCameraName(const DocKeyList& keys, const QString& name);
    /// A locked camera keeps its comment. Nothing in file mode.
    void setComment(const DocKeyList& keys, const QString& comment);
    void editDoc(DOCKEY key);

    /// A camera that records already is followed, and locked while the lock column is in use.
    void prepareConnectedDocs(const DocList& docs);

    /// Those that are connected now and not among `before` are prepared as any that connects.
    void joinConnected(const DocKeyList& before, GatheredFailures& failures);

private:
    /// Every road by which a camera comes into an open table ends here.
    void join(const DocKeyList& keys, GatheredFailures& failures);
    /// `where` is for the user.
    template <typename Search>
    void search(const QString& where, Search&& run);
    void noteSearch(const QString& where, const DocKeyList& added, int listed);
    template <typename Change>
    void change(const DocKeyList& keys, Change&& change);
    QString disconnectQuestion(const DocKeyList& keys) const;
    bool mayBeSelected(DOC_Interface& doc) const;
    DocKeyList keysToConnect(const DocKeyList& keys, GatheredFailures& failures) const;
    DocKeyList keysToDisconnect(const DocKeyList& keys, bool force, GatheredFailures& failures) const;

    ZebHost& m_host;
    TableState& m_state;
};
