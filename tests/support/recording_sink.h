// Remembers what the import writes, and what becomes of each line of a page.
#pragma once

#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "parse/import.h"

namespace ordex::testing {

// The five texts of a review row.
struct Row {
  std::string value;
  std::string first;
  std::string second;
  std::string third;
  std::string tag;

  bool operator==(const Row&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Row& row) {
  return out << row.value << " | " << row.first << " | " << row.second << " | " << row.third
             << " | " << row.tag;
}

struct Party {
  std::string szSoggetto;
  std::string szDifensore;

  bool operator==(const Party&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Party& party) {
  return out << "{" << party.szSoggetto << " | " << party.szDifensore << "}";
}

struct AgendaEntry {
  std::string value;
  std::string sub;
  bool bold = false;

  bool operator==(const AgendaEntry&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const AgendaEntry& entry) {
  return out << entry.value << " | " << entry.sub << (entry.bold ? " | bold" : "");
}

class RecordingSink final : public ImportSink {
 public:
  void SetWidthlstImport(int kind) override { kinds.push_back(kind); }
  void WriteListView(std::string_view ValueItem, std::string_view FirstSubItem,
                     std::string_view SecondSubItem, std::string_view ThirdSubItem,
                     std::string_view szTag) override {
    rows.push_back({std::string(ValueItem), std::string(FirstSubItem), std::string(SecondSubItem),
                    std::string(ThirdSubItem), std::string(szTag)});
  }
  void AggiungiRigaAgenda(std::string_view ValueItem, std::string_view FirstSubItem,
                          bool bold) override {
    agenda.push_back({std::string(ValueItem), std::string(FirstSubItem), bold});
  }
  void LoadcmbParti(std::string_view szSoggetto, std::string_view szDifensore) override {
    parties.push_back({std::string(szSoggetto), std::string(szDifensore)});
  }

  std::vector<int> kinds;
  std::vector<Row> rows;
  std::vector<AgendaEntry> agenda;
  std::vector<Party> parties;
};

// Remembers the lines in the order in which they were read, and the first taker of each.
class RecordingTrace final : public ImportTrace {
 public:
  struct ReadLine {
    std::size_t number = 0;
    std::string text;

    bool operator==(const ReadLine&) const = default;
  };

  void Read(const PageLine& line) override {
    lines.push_back({line.number, std::string(line.text)});
  }
  void Taken(const PageLine& line, std::string_view rule) override {
    takers[line.number].emplace_back(rule);
  }
  void WorkOn(const PageLine& line) override { workedOn.push_back(line.number); }

  // "none" where no rule took the line.
  std::string FirstTaker(std::size_t number) const {
    const auto found = takers.find(number);
    return found == takers.end() ? "none" : found->second.front();
  }

  std::vector<ReadLine> lines;
  std::map<std::size_t, std::vector<std::string>> takers;  // by line number, in order
  std::vector<std::size_t> workedOn;
};

inline std::ostream& operator<<(std::ostream& out, const RecordingTrace::ReadLine& line) {
  return out << line.number << ": " << line.text;
}

}  // namespace ordex::testing
