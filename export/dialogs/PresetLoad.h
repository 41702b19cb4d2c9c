#pragma once

#include "ZebTypes.h"

#include <QMap>

/// Numbers of presets by the keys of cameras; 0 is none.
using PresetNumbers = QMap<DOCKEY, int>;

class DOC_Interface;
class GatheredFailures;
class ZebHost;

/// Whether a head of the device that `doc` belongs to is locked: a preset is that of all its heads. Asks the camera.
bool isDeviceLocked(DOC_Interface& doc);

/// Has devices take one of the presets that they keep themselves. GUI thread.
class PresetLoad {
public:
    explicit PresetLoad(ZebHost& host) : m_host(host) {}

    /// One camera after the other, in the order of the keys, up to one that fails: throws with its name. Those that are
    /// gone, disconnected or locked by now are left as they are, and the last two named in the end by an exception too.
    /// Where a device must start anew for its preset the user is asked first; a no loads none at all.
    ///
    /// Runs event loops: a question and a progress. The host must outlive them.
    void run(const PresetNumbers& numbers);

private:
    PresetNumbers loadable(const PresetNumbers& numbers, GatheredFailures& left) const;
    DocKeyList rebooting(const PresetNumbers& numbers) const;
    bool userAgrees(const DocKeyList& rebooting) const;
    void load(DOC_Interface& doc, int number, bool reboots);

    ZebHost& m_host;
};
