// The window's state as JSON.
#pragma once

#include <nlohmann/json.hpp>
#include <ostream>

#include "state/window.h"

namespace ordex::console {

using Json = nlohmann::ordered_json;

// The members of the "state" event, without "event" itself.
Json StateJson(const Window& window);

// Prints an event on a line of its own. Every event is flushed: who reads along must know of it
// before the next one happens.
void PrintJsonLine(std::ostream& out, const Json& event);

Json ReviewRowJson(const ReviewRow& row);
Json AgendaRowJson(const AgendaRow& row);

}  // namespace ordex::console
