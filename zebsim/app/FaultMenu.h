#pragma once

#include "ZebTypes.h"

#include <QMenu>
#include <QStringList>

class SimHost;
struct Fault;

/// The faults of a camera, for a user to plant and to lift: it does not answer, is slow, has vanished, or refuses an
/// operation of his choice. Those that are planted, by whomever, are checked. Made anew whenever it opens.
class FaultMenu : public QMenu {
    Q_OBJECT

public:
    /// `host` must outlive the menu.
    FaultMenu(SimHost& host, DOCKEY key, QWidget* parent);

private:
    void fill();
    void addFault(const QString& operation, const Fault& fault, bool isPlanted);
    void plant(const QString& operation, const Fault& fault);
    void lift(const QString& operation);
    void chooseRefused();

    SimHost& m_host;
    const DOCKEY m_key;
};

/// What is planted on a camera, in the user's language.
QStringList plantedFaults(SimHost& host, DOCKEY key);
/// Those that have faults, vanished ones too.
DocKeyList faultyCameras(SimHost& host);
/// Takes all faults of these cameras away, and brings those back that had vanished.
void liftFaults(SimHost& host, const DocKeyList& cameras);
