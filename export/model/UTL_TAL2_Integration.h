#pragma once

#include "UTL_Integration.h"

/// The analysis program TAL2, which can be given what was saved. GUI thread.
class UTL_TAL2_Integration {
public:
    /// `host` is not owned and outlives the object.
    explicit UTL_TAL2_Integration(ZebHost* host) : m_integration(host) {}

    bool isTAL2AppInstalled() const;
    /// Whether images are saved while or right after they are recorded, when it can't be given them.
    bool isTal2OptionDisabled() const;

private:
    const UTL_Integration m_integration;
};
