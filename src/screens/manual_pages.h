// The manual as it lies on disk: where it is, its pages in the order of the index, and the places of a text in it.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "core/messages.h"

namespace zefirondo::screens {

struct ManualSection {
  QString title;
  QString anchor;
};

struct ManualPage {
  QString file;  // its name within the folder
  QString title;
  QString text;  // character by character as the document counts its places
  std::vector<ManualSection> sections;
};

/// A place of a text in a page.
struct ManualHit {
  std::size_t page = 0;
  int place = 0;
  int length = 0;
  QString line;  // the words around it
};

/// The first of these folders' "manual/<language>" that holds an index; empty when none does.
[[nodiscard]] QString FindManual(const QStringList& folders, Language language);

/// The index and, in its order, the pages that it leads to.
[[nodiscard]] std::vector<ManualPage> ReadManual(const QString& folder);

/// A text for comparing: small letters without accents, of the same length.
[[nodiscard]] QString Folded(const QString& text);

/// Where a text begins in another, whatever the case and the accents.
[[nodiscard]] std::vector<int> PlacesOf(const QString& wanted, const QString& text);

/// The places of a text in all pages. Where its words never stand together, those of its first word in the paragraphs
/// that hold them all. A text of one character finds nothing.
[[nodiscard]] std::vector<ManualHit> SearchManual(const std::vector<ManualPage>& pages, const QString& wanted);

}  // namespace zefirondo::screens
