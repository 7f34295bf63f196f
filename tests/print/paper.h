// Looking at a printed page without a printer.
#pragma once

#include <algorithm>
#include <cmath>

#include "print/page.h"
#include "support/desk.h"

namespace zefirondo {

template <class Item>
std::vector<Item> ItemsOf(const Page& page) {
  std::vector<Item> items;
  for (const PageItem& item : page.items) {
    if (const Item* const found = std::get_if<Item>(&item)) items.push_back(*found);
  }
  return items;
}

/// Every text in this column and line, in the order printed.
inline std::vector<std::string> TextsAt(const Page& page, double x, double y, int tab = 0) {
  std::vector<std::string> texts;
  for (const PageText& text : ItemsOf<PageText>(page)) {
    if (text.x == x && text.y == y && text.tab == tab) texts.push_back(text.text);
  }
  return texts;
}

/// Where a text stands; an x of −1 when it is nowhere, and of −2 when it is there more than once.
inline PageText Find(const Page& page, const std::string& words) {
  PageText found;
  found.x = -1;
  for (const PageText& text : ItemsOf<PageText>(page)) {
    if (text.text != words) continue;
    if (found.x != -1) {
      found.x = -2;
      return found;
    }
    found = text;
  }
  return found;
}

inline bool HasLine(const Page& page, double x1, double y1, double x2, double y2) {
  const std::vector<PageLine> lines = ItemsOf<PageLine>(page);
  return std::any_of(lines.begin(), lines.end(), [&](const PageLine& line) {
    return line.x1 == x1 && line.y1 == y1 && line.x2 == x2 && line.y2 == y2;
  });
}

/// What a page says, item by item, so that two pages can be compared.
inline std::vector<std::string> Said(const Page& page) {
  std::vector<std::string> said;
  for (const PageText& t : ItemsOf<PageText>(page)) {
    said.push_back(std::to_string(t.x) + " " + std::to_string(t.y) + " " + t.text + " " + std::to_string(t.tab));
  }
  for (const PageLine& l : ItemsOf<PageLine>(page)) {
    said.push_back(std::to_string(l.x1) + " " + std::to_string(l.y1) + " " + std::to_string(l.x2) + " " +
                   std::to_string(l.y2));
  }
  for (const PagePicture& p : ItemsOf<PagePicture>(page)) {
    said.push_back(p.source + " " + std::to_string(p.plot.points.size()));
  }
  return said;
}

}  // namespace zefirondo
