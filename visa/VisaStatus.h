#pragma once

#include <cstdint>

/// Statuses of VISA that the library answers.
namespace visastatus {

constexpr std::int32_t Success = 0;
constexpr std::int32_t InvalidObject = static_cast<std::int32_t>(0xBFFF000E);
constexpr std::int32_t InvalidResourceName = static_cast<std::int32_t>(0xBFFF0012);
constexpr std::int32_t TimeOut = static_cast<std::int32_t>(0xBFFF0015);
constexpr std::int32_t InvalidFormat = static_cast<std::int32_t>(0xBFFF003F);

}  // namespace visastatus
