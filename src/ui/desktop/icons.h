// The pictures of the program, drawn for it and crisp at any scale.
#pragma once

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>

#include <string_view>

#include "state/controls.h"

namespace ordex::desktop {

// The SVG text of resources/icons/NAME.svg; empty where there is none.
std::string_view EmbeddedIcon(std::string_view name);

// A square picture; `side` in pixels at 96 dots per inch.
wxBitmapBundle Icon(std::string_view name, int side);

// The picture that belongs to a key of the program's image lists ("Exclamation", "keyExpand", …).
// An unknown key gives an empty picture.
wxBitmapBundle PictureOf(std::string_view imageKey, int side);

// The picture of a flat button's symbol.
wxBitmapBundle SymbolPicture(Symbol symbol, int side);

wxIconBundle ProgramIcon();

}  // namespace ordex::desktop
