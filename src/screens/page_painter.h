// A printed page painted with Qt: words, lines and plots as vectors, on paper, into a PDF or into a picture.
#pragma once

#include "print/page.h"

class QPainter;

namespace zefirondo::screens {

constexpr double kTwipsPerInch = 1440.0;
constexpr double kTwipsPerPoint = 20.0;

/// Paints a page. The painter's unit is the twip, and its origin the page's upper left corner.
void PaintPage(QPainter& painter, const Page& page);

/// The place in twips where a tab stop stands, counted in columns from the page's left edge.
[[nodiscard]] double TabStop(int column);

}  // namespace zefirondo::screens
