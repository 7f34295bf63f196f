// A printed page: what stands on it, in the order drawn, in twips from its top left corner, and no printer anywhere.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "core/surface.h"

namespace zefirondo {

/// A text at a place, or at a tab stop of the line that begins there.
struct PageText {
  double x = 0.0, y = 0.0;
  std::string text;
  int tab = 0;          // the column of the tab stop; 0 for none
  bool strong = false;  // a heading
};

struct PageLine {
  double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
};

struct PageBox {
  double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
};

/// A plot or a drawing of the sheet, scaled into a rectangle.
struct PagePicture {
  double x = 0.0, y = 0.0, width = 0.0, height = 0.0;
  std::string source;  // the control painted: "frmgrafcassa.pctgraf", "imgbox(1)"
  Surface plot;        // what a plot showed when the page was made; empty for a drawing
};

using PageItem = std::variant<PageText, PageLine, PageBox, PagePicture>;

struct Page {
  bool landscape = false;
  std::vector<PageItem> items;
  bool last = false;  // the document was ended behind it
};

}  // namespace zefirondo
