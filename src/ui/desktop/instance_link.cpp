#include "ui/desktop/instance_link.h"

#include <wx/log.h>

#include <memory>
#include <utility>

#include "ui/desktop/wx_text.h"

namespace ordex::desktop {
namespace {

constexpr const char* kTopic = "MAIN";
constexpr const char* kItem = "lblLinkDDE";

// DDE names have no letter case: they come as whoever used them first wrote them.
bool IsSame(const wxString& name, const char* ours) {
  return name.CmpNoCase(ours) == 0;
}

class LinkConnection : public wxConnection {
 public:
  explicit LinkConnection(std::function<void()> onChange) : onChange_(std::move(onChange)) {}

  // The text says nothing: that the label changes is the signal.
  bool OnPoke(const wxString& /*topic*/, const wxString& item, const void* /*data*/,
              size_t /*size*/, wxIPCFormat /*format*/) override {
    if (!IsSame(item, kItem)) return false;
    onChange_();
    return true;
  }

  // Who keeps the link up for as long as the other side runs is welcome; the label is never told
  // on.
  bool OnStartAdvise(const wxString& /*topic*/, const wxString& item) override {
    return IsSame(item, kItem);
  }

 private:
  std::function<void()> onChange_;
};

}  // namespace

wxConnectionBase* LinkServer::OnAcceptConnection(const wxString& topic) {
  if (!IsSame(topic, kTopic)) return nullptr;
  return new LinkConnection(onChange_);
}

bool PokeFirstInstance(const std::string& service, const std::string& text) {
  const wxLogNull quiet;
  wxClient client;
  const std::unique_ptr<wxConnectionBase> connection(
      client.MakeConnection("localhost", Wx(service), kTopic));
  if (connection == nullptr) return false;
  // As plain text, which every program understands.
  const bool told = connection->Poke(kItem, text.c_str());
  connection->Disconnect();
  return told;
}

}  // namespace ordex::desktop
