#pragma once

#include "ZebTypes.h"

#include <stdexcept>
#include <string>

/// The user has cancelled a command to many cameras before it reached these: they are as they were, the others have got
/// it. The text has a line for each, and for each of the others that has failed.
class ZebLeftOut : public std::runtime_error {
public:
    ZebLeftOut(const std::string& text, const DocKeyList& keys) : std::runtime_error(text), m_keys(keys) {}

    const DocKeyList& keys() const { return m_keys; }

private:
    const DocKeyList m_keys;
};
