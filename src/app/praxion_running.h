// Whether the case application is running on this workstation. No step of the program asks it yet:
// it stands ready for one that has to know.
#pragma once

#include <string>
#include <string_view>

#include "state/ports.h"

namespace ordex {

// True when one of the running processes is the case application. Older systems give a process's
// whole path, and only its file's name counts; newer ones give the name, and it is enough that it
// holds the application's. False where the system gives no list.
bool PraxionInEsecuzione(const Processes& processes);

// The part of `path` behind its last "\"; all of it where there is none.
std::string EstraiNomeFile(std::string_view path);

}  // namespace ordex
