#include "host/SimSaver.h"

#include "host/StatusFlags.h"

bool SimSaver::isSaving() const {
    return m_flags.isOn(QStringLiteral("IsSaving"));
}

bool SimSaver::isBgSaving() const {
    return m_flags.isOn(QStringLiteral("IsBgSaving"));
}

bool SimSaver::isBgConverting() const {
    return m_flags.isOn(QStringLiteral("IsBgConverting"));
}
