// The free-form reader of curve files, against a second one written as plainly as its rules are told.
#include "files/row_reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <random>

#include "core/run_time_error.h"
#include "files/impedance_file.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

/// The whole file in memory, one character after the other.
struct PlainReader {
  std::string bytes;
  std::size_t at = 0;

  [[nodiscard]] bool AtEnd() const { return at >= bytes.size(); }
  [[nodiscard]] bool Is(std::string_view set) const {
    return !AtEnd() && set.find(bytes[at]) != std::string_view::npos;
  }

  double Field() {
    while (Is(" \t")) ++at;
    if (AtEnd()) throw RunTimeError(ErrorNumber::EndOfFile);
    std::string text;
    while (!AtEnd() && !Is(", \t\r\n")) text += bytes[at++];
    while (Is(" \t")) ++at;
    if (bytes.compare(at, 2, "\r\n") == 0) {
      at += 2;
    } else if (Is(",\r\n")) {
      ++at;
    }
    // The fields made here are those that both read alike; a number without a double is the largest one.
    return std::min(std::strtod(text.c_str(), nullptr), std::numeric_limits<double>::max());
  }

  Row NextRow() {
    const double first = Field();
    return {first, Field()};
  }
};

/// Fields of every kind behind separators of every kind; most files are longer than the reader's buffer.
std::string RandomFile(std::mt19937& random) {
  constexpr auto kSeparators = std::to_array<const char*>(
      {",", " ", "\t", "\r\n", "\n", "\r", "    ", " \t ", ", ", " ,", " , ", "  \r\n", "\r\n\t", "\n\n", ",,"});
  constexpr auto kFields = std::to_array<const char*>(
      {"0", "7.", ".25", "-3", "+4.5", "1e3", "-2.5E-2", "Ohm", ";5", "12;9", "-", "1e400x",
       "000001.5000000000000000000000000000000000000000000000001", "12345678901234567890123", "1e-400"});
  std::string text;
  const auto count = std::uniform_int_distribution<int>(0, 12000)(random);
  for (int i = 0; i < count; ++i) {
    const auto kind = random() % 40;
    if (kind == 0) {
      text += std::string(random() % 9000, 'q');
    } else if (kind < 8) {
      text += kFields[random() % kFields.size()];
    } else {
      text += std::to_string(static_cast<double>(random() % 2000000) / 997.0);
    }
    text += random() % 3 == 0 ? kSeparators[random() % kSeparators.size()] : (i % 2 == 0 ? "," : "\r\n");
  }
  return text;
}

template <class Reader>
std::vector<double> Fields(Reader& reader, double (Reader::*field)()) {
  std::vector<double> fields;
  try {
    while (!reader.AtEnd()) fields.push_back((reader.*field)());
  } catch (const RunTimeError& error) {
    fields.push_back(-1e9 - error.number());
  }
  return fields;
}

TEST(RowReader, ReadsAsThePlainOne) {
  std::mt19937 random(7);
  const TemporaryFolder folder;
  for (int i = 0; i < 16; ++i) {
    const std::string text = RandomFile(random);
    RowReader reader(folder.Write("f", text));
    PlainReader plain{text};
    const auto expected = Fields(plain, &PlainReader::Field);
    const auto read = Fields(reader, &RowReader::ReadNumberField);
    ASSERT_EQ(read.size(), expected.size()) << "file " << i;
    for (std::size_t k = 0; k < read.size(); ++k) ASSERT_EQ(read[k], expected[k]) << "file " << i << " field " << k;
    EXPECT_EQ(reader.length(), static_cast<double>(text.size()));
  }
}

/// The rows that are used and the number of the failure at the end.
template <class Reader>
std::vector<double> PlainImpedance(Reader reader) {
  std::vector<double> used;
  try {
    Row row = reader.NextRow();
    while (row.first == 0.0 || (row.first > 0.0 && row.first < 1.0)) row = reader.NextRow();
    while (!reader.AtEnd()) {
      used.insert(used.end(), {row.first, row.second});
      row = reader.NextRow();
    }
  } catch (const RunTimeError& error) {
    used.push_back(error.number());
  }
  return used;
}

std::vector<double> Impedance(const std::filesystem::path& path) {
  std::vector<double> used;
  try {
    RowReader reader(path);
    ReadImpedanceRows(reader, [&](const Row& row) { used.insert(used.end(), {row.first, row.second}); });
  } catch (const RunTimeError& error) {
    used.push_back(error.number());
  }
  return used;
}

TEST(ImpedanceRows, AreThoseOfThePlainReader) {
  std::mt19937 random(11);
  const TemporaryFolder folder;
  int failed = 0;
  for (int i = 0; i < 40; ++i) {
    std::string text = RandomFile(random).substr(0, 1 + random() % 3000);
    if (i % 2 == 0) text = ";Freq(Hz) Ohm\r\n0 3\r\n0.99 4\r\n" + text;
    const auto expected = PlainImpedance(PlainReader{text});
    EXPECT_EQ(Impedance(folder.Write("f", text)), expected) << "file " << i;
    if (expected.size() % 2 == 1) ++failed;
  }
  EXPECT_GT(failed, 5);  // files that end in the middle of a pair were among them
}

struct RowsCase {
  const char* text;
  std::vector<double> used;  // an odd count: the last one is the number of the failure
};

TEST(ImpedanceRows, FollowTheirRules) {
  const TemporaryFolder folder;
  const RowsCase kCases[] = {
      {"10 5\r\n20 6\r\n30 7\r\n", {10, 5, 20, 6}},                      // the last row is lost
      {"10,5\n20   6\r30\t7", {10, 5, 20, 6}},                           // every separator makes the same row
      {"10\r\n5\r\n20\r\n6\r\n30\r\n7\r\n", {10, 5, 20, 6}},             // two fields on two lines
      {"0 9\r\n0.5 9\r\n.99 9\r\n1 2\r\n0.5 3\r\n4 4", {1, 2, 0.5, 3}},  // the skip is for the leading rows
      {";Freq(Hz) Ohm\r\n1 2\r\n3 4\r\n", {1, 2}},                       // a heading of two words reads as 0, 0
      {"10 5 77\r\n20 6\r\n30 7", {10, 5, 77, 20, 6, 30, 62}},           // a third field is the next row's frequency
      {"10 5\r\n20 x\r\n30 7", {10, 5, 20, 0}},                          // no number reads as 0
      {"10 5;1\r\n20;3 6\r\n30 7", {10, 5, 20, 6}},                      // a semicolon is no separator
      {"10 5,5\r\n20 6\r\n", {10, 5, 5, 20, 62}},                        // a comma is no decimal sign
      {"10 5\r\n20", {10, 5, 62}},                                       // the end in the middle of a pair
      {"10 5\r\n20 6\r\n\r\n", {10, 5, 20, 6, 62}},                      // an empty line is half a row
      {"10 5\r\n20 6 \t", {10, 5}},                                      // blanks behind the last row are nothing
      {"-5 5\r\n20 6", {-5, 5}},
      {"0 0\r\n0 0\r\n", {62}},
      {"10 5", {}},
      {"", {62}},
      {" \t ", {62}},
  };
  for (const RowsCase& row : kCases) EXPECT_EQ(Impedance(folder.Write("f", row.text)), row.used) << row.text;
}

TEST(RowReader, DropsAWholeLineWithEveryKindOfEnd) {
  const TemporaryFolder folder;
  for (const char* const end : {"\r\n", "\n", "\r"}) {
    RowReader reader(folder.Write("f", std::string(";Freq(Hz), 1 2 3") + end + "8 9"));
    EXPECT_EQ(reader.ReadLine(), ";Freq(Hz), 1 2 3");
    EXPECT_EQ(reader.ReadRow().first, 8);
    EXPECT_TRUE(reader.AtEnd());
  }
  RowReader reader(folder.Write("f", ""));
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_THROW(reader.ReadLine(), RunTimeError);
}

TEST(RowReader, GoesThroughBytesOfEveryKind) {
  const TemporaryFolder folder;
  using namespace std::string_literals;
  // A field that begins with a NUL is no number; one behind the digits ends them.
  EXPECT_EQ(Impedance(folder.Write("f",
                                   "\0"
                                   "10 5\0\r\n20\0"
                                   "7 6\r\n30 7"s)),
            (std::vector<double>{20, 6}));
  std::string wide;  // two bytes a character: what follows a separator begins with a NUL
  for (const char c : "10 5\r\n20 6\r\n30 7\r\n"s) wide += {c, '\0'};
  EXPECT_EQ(Impedance(folder.Write("f", "\xFF\xFE" + wide)), (std::vector<double>{62}));
  const std::string megabyte(1 << 20, 'x');
  EXPECT_EQ(Impedance(folder.Write("f", megabyte)), (std::vector<double>{62}));
  EXPECT_EQ(Impedance(folder.Write("f", "10 " + megabyte + "\r\n20 6\r\n3 4")), (std::vector<double>{10, 0, 20, 6}));
  EXPECT_EQ(Impedance(folder.Write("f", std::string(1 << 20, ' ') + "10" + std::string(1 << 20, '\t') + "5\n2 3")),
            (std::vector<double>{10, 5}));
}

TEST(RowReader, RefusesWhatIsNoFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(Impedance(folder.path()), (std::vector<double>{75}));
  const auto pipe = folder.path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(Impedance(pipe), (std::vector<double>{75}));
  EXPECT_EQ(Impedance(folder.path() / "none"), (std::vector<double>{53}));
  EXPECT_EQ(Impedance(folder.path() / "no" / "ne"), (std::vector<double>{76}));
}

TEST(ImpedanceStore, ReplacesWhatStoodThereAndKeepsTheZeroSlot) {
  Curve hertz{1, 2, 3};
  Curve ohm{4};
  ImpedanceStore store(hertz, ohm);
  EXPECT_TRUE(store.IsEmpty());
  EXPECT_EQ(hertz, (Curve{1, 2, 3}));
  store.Add({10, 5});
  EXPECT_EQ(hertz, (Curve{10, 0}));
  store.Add({20, 6});
  EXPECT_EQ(hertz, (Curve{10, 20, 0}));
  EXPECT_EQ(ohm, (Curve{5, 6, 0}));
  EXPECT_FALSE(store.IsEmpty());
}

}  // namespace
}  // namespace zefirondo
