#include "ui/console/command_source.h"

#include "base/text.h"

namespace ordex::console {

std::optional<Command> CommandSource::Next() {
  for (std::string text;;) {
    if (prompt_) prompt_();
    if (!std::getline(in_, text)) return std::nullopt;
    ++line_;
    std::string_view line = text;
    if (line_ == 1 && line.starts_with("\xEF\xBB\xBF")) line.remove_prefix(3);
    if (line.ends_with('\r')) line.remove_suffix(1);
    line = TrimLeft(line);
    const bool blank = line.find_first_not_of(" \t") == std::string_view::npos;
    if (line.starts_with('#') || (blank && !Interactive())) continue;
    const auto halves = SplitOnce(line, " ");
    if (!halves) return Command{std::string(line), "", line_};
    return Command{std::string(halves->left), std::string(halves->right), line_};
  }
}

}  // namespace ordex::console
