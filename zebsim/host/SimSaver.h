#pragma once

#include "ZebSaver.h"

class StatusFlags;

/// Whether images are being saved.
class SimSaver : public ZebSaver {
public:
    explicit SimSaver(const StatusFlags& flags) : m_flags(flags) {}

    bool isSaving() const override;
    bool isBgSaving() const override;
    bool isBgConverting() const override;

private:
    const StatusFlags& m_flags;
};
