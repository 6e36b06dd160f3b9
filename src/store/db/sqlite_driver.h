// The embedded driver's own openings, for the driver itself and its tests.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

#include "store/db/connection.h"

namespace ordex {

// How long a writer waits for another one.
inline constexpr std::chrono::milliseconds kBusyTimeOut{5000};

// As OpenSqlite, with a waiting time of one's own.
std::unique_ptr<Connection> OpenSqliteWaiting(const std::filesystem::path& file,
                                              std::chrono::milliseconds busyTimeOut);

}  // namespace ordex
