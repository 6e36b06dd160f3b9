// The signal of a second start to the first instance: the link "Ordex|MAIN", item "lblLinkDDE".
#pragma once

// Says which system this is; the next header asks and does not include it, and would choose sockets
// where there is DDE.
#include <wx/defs.h>
//
#include <wx/ipc.h>

#include <functional>
#include <string>

namespace ordex::desktop {

// The first instance's end.
class LinkServer : public wxServer {
 public:
  explicit LinkServer(std::function<void()> onChange) : onChange_(std::move(onChange)) {}

  wxConnectionBase* OnAcceptConnection(const wxString& topic) override;

 private:
  std::function<void()> onChange_;
};

// Pokes `text` into the first instance's label. False where nobody answers.
bool PokeFirstInstance(const std::string& service, const std::string& text);

}  // namespace ordex::desktop
