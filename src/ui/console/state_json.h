// The window's state as JSON.
#pragma once

#include <nlohmann/json.hpp>

#include "state/window.h"

namespace ordex::console {

using Json = nlohmann::ordered_json;

// The members of the "state" event, without "event" itself.
Json StateJson(const Window& window);

Json ReviewRowJson(const ReviewRow& row);
Json AgendaRowJson(const AgendaRow& row);

}  // namespace ordex::console
