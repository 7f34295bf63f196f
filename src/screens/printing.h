// Pages on a printer of the desktop, or in a PDF.
#pragma once

#include <vector>

#include "core/platform.h"
#include "print/page.h"

class QPrinter;

namespace zefirondo::screens {

/// A4 in portrait, with places counted from the paper's corner.
void SetUpPaper(QPrinter& printer);

/// What was chosen in a printer dialog. The printer keeps no count of copies: each copy is a page of the document.
[[nodiscard]] PrintChoice TakeChoice(QPrinter& printer);

/// Prints a document. Throws `RunTimeError` when the printer takes no page or fails at one.
void PrintPages(QPrinter& printer, const std::vector<Page>& pages);

}  // namespace zefirondo::screens
