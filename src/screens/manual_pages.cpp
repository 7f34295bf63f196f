#include "screens/manual_pages.h"

#include <QFile>
#include <QFileInfo>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace zefirondo::screens {
namespace {

constexpr int kAround = 30;       // characters shown before and behind a hit
constexpr int kShortest = 2;      // a search for less would find everything
constexpr int kTitleLevel = 1;    // h1
constexpr int kSectionLevel = 2;  // h2
constexpr std::size_t kMostHits = 500;

bool ReadDocument(const QString& path, QTextDocument& document) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  document.setHtml(QString::fromUtf8(file.readAll()));
  return true;
}

QString AnchorOf(const QTextBlock& block) {
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QStringList names = part.fragment().charFormat().anchorNames();
    if (!names.isEmpty()) return names.constFirst();
  }
  return {};
}

ManualPage PageOf(const QString& file, const QTextDocument& document) {
  ManualPage page{file, document.metaInformation(QTextDocument::DocumentTitle), document.toPlainText(), {}};
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level == kTitleLevel) page.title = block.text().simplified();
    if (level != kSectionLevel) continue;
    if (const QString anchor = AnchorOf(block); !anchor.isEmpty()) {
      page.sections.push_back({block.text().simplified(), anchor});
    }
  }
  return page;
}

/// The pages that a document leads to, each once, in the order of its links.
QStringList LinkedPages(const QTextDocument& document) {
  QStringList files;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QString file = part.fragment().charFormat().anchorHref().section(u'#', 0, 0);
      if (!file.isEmpty() && !files.contains(file)) files.append(file);
    }
  }
  return files;
}

/// A hit with the words around it, from the same paragraph.
ManualHit HitAt(std::size_t page, const QString& text, int place, int length) {
  int first = place;
  while (first > 0 && text[first - 1] != u'\n' && (place - first < kAround || !text[first - 1].isSpace())) --first;
  const int end = place + length;
  int last = end;
  while (last < text.size() && text[last] != u'\n' && (last - end < kAround || !text[last].isSpace())) ++last;
  QString line = text.mid(first, last - first).simplified();
  if (first > 0 && text[first - 1] != u'\n') line.prepend(QStringLiteral("… "));
  if (last < text.size() && text[last] != u'\n') line.append(QStringLiteral(" …"));
  return {page, place, length, line};
}

void SearchPhrase(const std::vector<ManualPage>& pages, const QString& wanted, std::vector<ManualHit>& hits) {
  for (std::size_t i = 0; i < pages.size(); ++i) {
    for (const int place : PlacesOf(wanted, pages[i].text)) {
      if (hits.size() == kMostHits) return;
      hits.push_back(HitAt(i, pages[i].text, place, static_cast<int>(wanted.size())));
    }
  }
}

void SearchWords(const std::vector<ManualPage>& pages, const QStringList& words, std::vector<ManualHit>& hits) {
  for (std::size_t i = 0; i < pages.size(); ++i) {
    int start = 0;
    for (const QString& paragraph : pages[i].text.split(u'\n')) {
      const auto holds = [&](const QString& word) { return !PlacesOf(word, paragraph).empty(); };
      if (hits.size() < kMostHits && std::all_of(words.begin(), words.end(), holds)) {
        const QString& first = words.constFirst();
        const int place = start + PlacesOf(first, paragraph).front();
        hits.push_back(HitAt(i, pages[i].text, place, static_cast<int>(first.size())));
      }
      start += static_cast<int>(paragraph.size()) + 1;
    }
  }
}

}  // namespace

QString FindManual(const QStringList& folders, Language language) {
  const QString name = language == Language::Italian ? QStringLiteral("/manual/it") : QStringLiteral("/manual/en");
  for (const QString& folder : folders) {
    if (QFileInfo(folder + name + QStringLiteral("/index.html")).isFile()) return folder + name;
  }
  return {};
}

std::vector<ManualPage> ReadManual(const QString& folder) {
  const QString index = QStringLiteral("index.html");
  std::vector<ManualPage> pages;
  QTextDocument contents;
  if (!ReadDocument(folder + u'/' + index, contents)) return pages;
  pages.push_back(PageOf(index, contents));
  for (const QString& file : LinkedPages(contents)) {
    QTextDocument document;
    if (file != index && ReadDocument(folder + u'/' + file, document)) pages.push_back(PageOf(file, document));
  }
  return pages;
}

QString Folded(const QString& text) {
  QString folded = text;
  for (QChar& c : folded) {
    const QString parts = c.decomposition();
    if (!parts.isEmpty() && parts[0].isLetter()) c = parts[0];
    c = c.isSpace() && c != u'\n' ? QChar(u' ') : c.toLower();
  }
  return folded;
}

std::vector<int> PlacesOf(const QString& wanted, const QString& text) {
  std::vector<int> places;
  const QString needle = Folded(wanted);
  if (needle.isEmpty()) return places;
  const QString hay = Folded(text);
  for (qsizetype at = hay.indexOf(needle); at >= 0; at = hay.indexOf(needle, at + needle.size())) {
    places.push_back(static_cast<int>(at));
  }
  return places;
}

std::vector<ManualHit> SearchManual(const std::vector<ManualPage>& pages, const QString& wanted) {
  std::vector<ManualHit> hits;
  const QString phrase = wanted.simplified();
  if (phrase.size() < kShortest) return hits;
  SearchPhrase(pages, phrase, hits);
  const QStringList words = phrase.split(u' ');
  if (hits.empty() && words.size() > 1) SearchWords(pages, words, hits);
  return hits;
}

}  // namespace zefirondo::screens
