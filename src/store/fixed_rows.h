// Rows that every case database has and rules fall back to, and a value that new rows share.
#pragma once

#include <cstdint>
#include <string_view>

namespace ordex {

// The row of Anagrafica that stands for nobody.
inline constexpr std::int32_t kNobody = 1;
// The row of Pratica that stands for no case.
inline constexpr std::int32_t kNoCase = 1;
// The row of Utenti that is always there.
inline constexpr std::int32_t kSupervisor = 2;
inline constexpr std::string_view kSupervisorName = "SUPERVISORE";

// The fixed exchange rate of the lira to the euro, column Cambio.
inline constexpr double kLiraRate = 1936.27;

}  // namespace ordex
