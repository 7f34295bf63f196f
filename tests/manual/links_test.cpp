// The manual hangs together: its links lead somewhere, and both languages have the same places.
#include <gtest/gtest.h>

#include <set>

#include "manual/pages.h"

namespace zefirondo {
namespace {

class EveryManual : public testing::TestWithParam<Language> {
 protected:
  Manual manual = ReadManual(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Languages, EveryManual, testing::Values(Language::English, Language::Italian),
                         [](const auto& instance) { return FolderName(instance.param); });

TEST_P(EveryManual, HasPages) {
  EXPECT_GE(manual.size(), 15u);
  EXPECT_TRUE(manual.contains("index.html"));
}

TEST_P(EveryManual, LinksLeadToAPageAndAPlaceInIt) {
  std::size_t links = 0;
  for (const auto& [file, page] : manual) {
    for (const std::string& link : page.Links()) {
      const std::size_t mark = link.find('#');
      const std::string target = mark == 0 ? file : link.substr(0, mark);
      ASSERT_TRUE(manual.contains(target)) << file << " leads to " << link;
      if (mark != std::string::npos) {
        EXPECT_TRUE(Holds(manual.at(target).Anchors(), link.substr(mark + 1))) << file << " leads to " << link;
      }
      ++links;
    }
  }
  EXPECT_GT(links, 100u);
}

TEST_P(EveryManual, HasNoOtherKindOfLinkOrAnchor) {
  for (const auto& [file, page] : manual) {
    EXPECT_EQ(page.All("(href=)").size(), page.Links().size() + 1) << file;  // and the style sheet
    EXPECT_EQ(page.All("(<a )").size(), page.Links().size() + page.Anchors().size()) << file;
    EXPECT_TRUE(page.All("(id=\")").empty()) << file;
  }
}

TEST_P(EveryManual, PicturesAndStylesAreThere) {
  for (const auto& [file, page] : manual) {
    ASSERT_FALSE(page.Files().empty()) << file;
    for (const std::string& name : page.Files()) {
      EXPECT_TRUE(std::filesystem::exists(ManualFolder() / FolderName(GetParam()) / name)) << file << ": " << name;
    }
  }
}

TEST_P(EveryManual, AnAnchorStandsOnceInItsPage) {
  for (const auto& [file, page] : manual) {
    const Names anchors = page.Anchors();
    EXPECT_EQ(std::set<std::string>(anchors.begin(), anchors.end()).size(), anchors.size()) << file;
  }
}

TEST_P(EveryManual, TheIndexLeadsToEveryPage) {
  const Names links = manual.at("index.html").Links();
  for (const auto& [file, page] : manual) {
    const bool reached = file == "index.html" || Holds(links, file);
    EXPECT_TRUE(reached) << file;
  }
}

TEST_P(EveryManual, PagesAreWellMade) {
  const std::regex tag("<(/?)([a-z][a-z0-9]*)[^>]*>");
  const std::set<std::string> empty{"meta", "link", "img", "br"};
  for (const auto& [file, page] : manual) {
    EXPECT_EQ(page.All("<html lang=\"(..)\">"), Names{FolderName(GetParam())}) << file;
    EXPECT_EQ(page.All("(charset=utf-8)").size(), 1u) << file;
    EXPECT_EQ(page.All("<title>([^<]+)</title>").size(), 1u) << file;
    EXPECT_EQ(page.All("(<h1>)").size(), 1u) << file;
    EXPECT_TRUE(page.All("(&(?!lt;|gt;|amp;|nbsp;))").empty()) << file;
    Names open;
    for (std::sregex_iterator match(page.html.begin(), page.html.end(), tag), end; match != end; ++match) {
      const std::string name = (*match)[2].str();
      if (empty.contains(name)) continue;
      if ((*match)[1].length() == 0) {
        open.push_back(name);
        continue;
      }
      ASSERT_FALSE(open.empty()) << file << ": </" << name << ">";
      EXPECT_EQ(open.back(), name) << file;
      open.pop_back();
    }
    EXPECT_TRUE(open.empty()) << file;
  }
}

TEST(BothManuals, HaveTheSamePagesAnchorsAndLinks) {
  const Manual english = ReadManual(Language::English);
  const Manual italian = ReadManual(Language::Italian);
  ASSERT_EQ(english.size(), italian.size());
  for (const auto& [file, page] : english) {
    ASSERT_TRUE(italian.contains(file)) << file;
    EXPECT_EQ(page.Anchors(), italian.at(file).Anchors()) << file;
    EXPECT_EQ(page.Links(), italian.at(file).Links()) << file;
    for (const char* const part : {"(<tr>)", "(<li>)", "(<h2>)", "(<pre>)"}) {
      EXPECT_EQ(page.All(part).size(), italian.at(file).All(part).size()) << file << ' ' << part;
    }
    EXPECT_NE(page.Text(), italian.at(file).Text()) << file;
  }
}

}  // namespace
}  // namespace zefirondo
