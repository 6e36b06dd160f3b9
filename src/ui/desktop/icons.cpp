#include "ui/desktop/icons.h"

#include <array>
#include <string>
#include <utility>

#include "state/controls.h"

namespace ordex::desktop {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 8> kImageKeys = {{
    {"Exclamation", "exclamation"},
    {"Praxion", "praxion"},
    {"Pratiche", "pratiche"},
    {"NoPratiche", "no-pratiche"},
    {"Stop", "stop"},
    {"Stop2", "stop2"},
    {"keyExpand", "expand"},
    {"keyCollapse", "collapse"},
}};

constexpr std::array<int, 6> kProgramIconSides = {16, 24, 32, 48, 64, 128};

}  // namespace

wxBitmapBundle Icon(std::string_view name, int side) {
  const std::string_view svg = EmbeddedIcon(name);
  if (svg.empty()) return {};
  return wxBitmapBundle::FromSVG(std::string(svg).c_str(), wxSize(side, side));
}

wxBitmapBundle PictureOf(std::string_view imageKey, int side) {
  for (const auto& [key, name] : kImageKeys) {
    if (key == imageKey) return Icon(name, side);
  }
  return {};
}

wxBitmapBundle SymbolPicture(Symbol symbol, int side) {
  if (symbol == Symbol::kUpdate) return Icon("update", side);
  if (symbol == Symbol::kCreate) return Icon("create", side);
  return {};
}

wxIconBundle ProgramIcon() {
  wxIconBundle icons;
  for (const int side : kProgramIconSides) {
    wxIcon icon;
    icon.CopyFromBitmap(Icon("ordex", side).GetBitmap(wxSize(side, side)));
    icons.AddIcon(icon);
  }
  return icons;
}

}  // namespace ordex::desktop
