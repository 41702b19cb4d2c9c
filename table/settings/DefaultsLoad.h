#pragma once

#include "CameraSteps.h"
#include "ZebTypes.h"

#include <QStringList>

class GatheredFailures;
class ZebHost;
struct CameraDefaults;
struct TableDefaults;
struct TableState;

/// Brings the default settings to cameras, and to the table, once. Runs event loops, in which no press arrives but in
/// boxes, and no update. GUI thread.
///
/// Nothing is changed while one of the cameras is ready or records. A camera that is locked gets nothing, and one that
/// fails nothing more; the others go on. No box stands before all is done.
class DefaultsLoad {
public:
    /// What fails goes into `failures`, of a camera as "camera: step: reason".
    /// `patience`: as of `CameraSteps`.
    DefaultsLoad(ZebHost& host, TableState& state, GatheredFailures& failures,
                 std::chrono::milliseconds patience = CameraSteps::Patience)
        : m_host(host), m_state(state), m_failures(failures), m_steps(host, failures, patience) {}

    /// For all connected cameras, and the table's groups, lists and sources of the signal.
    void loadAll();
    /// For cameras that have joined: they alone get the settings. Those that are not connected are left out.
    void loadOnto(const DocKeyList& joined);

private:
    void load(const DocKeyList& keys, const TableDefaults* table);
    bool readCameras(const DocKeyList& keys);
    void apply(const CameraDefaults& defaults, const TableDefaults* table);
    void leaveLowLight();
    void returnToLowLight();
    void setCameras(const CameraDefaults& defaults);
    void setTrigger(int mode, const zeb::TriggerSettings& parameters);
    void takeLists(const TableDefaults& settings);
    void connectSignalSources();

    ZebHost& m_host;
    TableState& m_state;
    GatheredFailures& m_failures;
    CameraSteps m_steps;
    /// Connected, and those of them that are not locked.
    DocKeyList m_connected;
    DocKeyList m_open;
    /// In low light mode before.
    DocKeyList m_lowLight;
    QStringList m_misfits;
};
