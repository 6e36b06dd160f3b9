// The processes that run on this system.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "state/ports.h"

namespace ordex {

class SystemProcesses : public Processes {
 public:
  std::optional<SystemVersion> Version() const override;
  std::optional<std::vector<std::string>> Snapshot() const override;
};

}  // namespace ordex
