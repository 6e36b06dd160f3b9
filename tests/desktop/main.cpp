#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdio>
#include <exception>
#include <memory>
#include <thread>

#include "complaints.h"
#include "ui/desktop/platform.h"
#include "virtual_display.h"

namespace ordex::desktop_tests {
namespace {

// The program's own, but for the part that belongs to one process: link, lock and options.
class TestApp : public wxApp {
 public:
  bool OnInit() override {
    SetAppName("Ordex");
    SetExitOnFrameDelete(false);
    desktop::UseCompactControls();
    return true;
  }
  int OnRun() override {
    std::thread tests([this] {
      result_ = RUN_ALL_TESTS();
      CallAfter([this] { ExitMainLoop(); });
    });
    wxApp::OnRun();
    tests.join();
    return result_;
  }

 private:
  int result_ = 1;
};

int Run(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  const VirtualDisplay display;
  KeepComplaints();
  desktop::PrepareDesktop();
  wxApp::SetInstance(new TestApp);
  return wxEntry(argc, argv);
}

}  // namespace
}  // namespace ordex::desktop_tests

int main(int argc, char** argv) {
  try {
    return ordex::desktop_tests::Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
