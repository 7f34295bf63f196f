// The lines of a script as words.
#include "runner/words.h"

#include <gtest/gtest.h>

#include <cmath>

#include "runner/script_error.h"

namespace zefirondo {
namespace {

using Words = std::vector<std::string>;

struct WordsRow {
  const char* line;
  Words words;
};

TEST(ScriptWords, AreSeparatedByBlanks) {
  for (const WordsRow& row : {WordsRow{"", {}},
                              {"   \t ", {}},
                              {"one", {"one"}},
                              {"  one\t two   three  ", {"one", "two", "three"}},
                              {"one two\r", {"one", "two"}},
                              {"# a remark", {}},
                              {"   # a remark", {}},
                              {"echo # no remark", {"echo", "#", "no", "remark"}},
                              {"#", {}},
                              {"set x a\"b", {"set", "x", "a\"b"}},
                              {"set x C:\\dir", {"set", "x", "C:\\dir"}},
                              {"échö µ", {"échö", "µ"}}}) {
    EXPECT_EQ(SplitWords(row.line), row.words) << row.line;
  }
}

TEST(ScriptWords, StandInQuotesWithBlanksAndEscapes) {
  for (const WordsRow& row : {WordsRow{R"("a b")", {"a b"}},
                              {R"(x "")", {"x", ""}},
                              {R"("" "" x)", {"", "", "x"}},
                              {R"("a\"b")", {"a\"b"}},
                              {R"("a\\b")", {"a\\b"}},
                              {R"("a\nb\rc\td")", {"a\nb\rc\td"}},
                              {R"("# no remark")", {"# no remark"}},
                              {R"("#" x)", {"#", "x"}}}) {
    EXPECT_EQ(SplitWords(row.line), row.words) << row.line;
  }
}

TEST(ScriptWords, CannotBeBrokenInTheirQuotes) {
  for (const char* const line : {"\"open", "x \"open", R"("a\")", R"("a"b)", R"("a\qb")", "\""}) {
    EXPECT_THROW(static_cast<void>(SplitWords(line)), ScriptError) << line;
  }
}

TEST(ScriptWords, ArePrintedWithTheSameEscapes) {
  EXPECT_EQ(Quoted(""), R"("")");
  EXPECT_EQ(Quoted("a b"), R"("a b")");
  EXPECT_EQ(Quoted("a\"b\\c\nd\re\tf"), R"("a\"b\\c\nd\re\tf")");
  EXPECT_EQ(Quoted("è"), "\"è\"");
}

TEST(ScriptNumbers, HaveSeventeenDigitsAndAPoint) {
  EXPECT_EQ(NumberText(0), "0");
  EXPECT_EQ(NumberText(-1.5), "-1.5");
  EXPECT_EQ(NumberText(0.1), "0.10000000000000001");
  EXPECT_EQ(NumberText(1e300), "1.0000000000000001e+300");
  EXPECT_EQ(NumberText(1.0 / 3), "0.33333333333333331");
}

}  // namespace
}  // namespace zefirondo
