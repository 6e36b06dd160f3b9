#include "ui/desktop/desk.h"

#include <string>
#include <string_view>
#include <utility>

#include "store/db/open_connection.h"
#include "ui/desktop/platform.h"

namespace ordex::desktop {

Desk::Desk(const std::filesystem::path& programFolder, Settings& settings, Clock& clock,
           std::function<void(EndReason)> onEnd)
    : window_(programFolder, World{.boxes = ports_,
                                   .dialogs = ports_,
                                   .desktop = ports_,
                                   .clipboard = clipboard_,
                                   .clock = clock,
                                   .settings = settings,
                                   .diagnostics = ports_,
                                   .progress = ports_,
                                   .openDatabase =
                                       [programFolder](std::string_view connectionString) {
                                         return OpenConnection(connectionString, programFolder);
                                       }}),
      frame_(new MainFrame(window_, [this, end = std::move(onEnd)] { end(*window_.ended()); })) {
  ports_.Attach(window_, *frame_);
}

void Desk::Start() {
  frame_->Run([this](MainWindow& window) { window.Start(std::to_string(HandleOf(*frame_))); });
  if (!window_.ended()) frame_->Open();
}

void Desk::Close() {
  if (frame_ != nullptr) frame_->Destroy();
  frame_ = nullptr;
}

}  // namespace ordex::desktop
