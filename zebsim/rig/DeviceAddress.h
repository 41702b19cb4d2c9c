#pragma once

#include "JsonNode.h"

/// The text of `node`, which is an IPv4 address. Throws `JsonError`.
QString readDeviceAddress(const JsonNode& node);
