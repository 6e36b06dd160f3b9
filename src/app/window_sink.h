// Where an import puts what it reads: the lists and the parties boxes of the window.
#pragma once

#include <string_view>

#include "parse/import.h"
#include "state/window.h"

namespace ordex {

class WindowSink : public ImportSink {
 public:
  explicit WindowSink(Window& window) : window_(window) {}

  void SetWidthlstImport(int kind) override;
  void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                     std::string_view SecondSubItem, std::string_view ThirdSubItem,
                     std::string_view szTag) override;
  void AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                          bool bold) override;
  void LoadcmbParti(std::string_view szSoggetto, std::string_view szDifensore) override;

 private:
  Window& window_;
};

}  // namespace ordex
