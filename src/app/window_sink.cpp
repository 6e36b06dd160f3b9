#include "app/window_sink.h"

#include "app/review_lists.h"
#include "cases/case_choice_rules.h"

namespace ordex {

void WindowSink::SetWidthlstImport(int kind) {
  ordex::SetWidthlstImport(window_.lstImport, kind);
}

void WindowSink::WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                               std::string_view SecondSubItem, std::string_view ThirdSubItem,
                               std::string_view szTag) {
  ordex::WriteListView(window_.lstImport, ValueItem, FirstSubItem, SecondSubItem, ThirdSubItem,
                       szTag);
}

void WindowSink::AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                                    bool bold) {
  ordex::AggiungiRigaAgenda(window_.lstAgendaAvv, ValueItem, FirstSubItem, bold);
}

void WindowSink::LoadcmbParti(std::string_view szSoggetto, std::string_view szDifensore) {
  ordex::LoadcmbParti(window_.choice, szSoggetto, szDifensore);
}

}  // namespace ordex
