// The table of texts. Its rows are held by checksums that were worked out from the list of
// texts, not from this program, by a few lines of Python:
//
//   h = 0xcbf29ce484222325
//   for byte in "".join(f"{id}={text}\n" for id, text in rows).encode("utf-8"):
//       h = ((h ^ byte) * 0x100000001b3) % 2**64
//
// over all rows but 213 and 214, which are this program's own, in the order of their ids.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/messages.h"
#include "core/program.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

std::string English(int id) { return std::string(MessageText(id, Language::English)); }
std::string Italian(int id) { return std::string(MessageText(id, Language::Italian)); }

/// The ids between 101 and 510 that no text has.
bool IsGap(int id) {
  constexpr std::array<std::pair<int, int>, 12> kGaps{{{103, 107},
                                                       {109, 112},
                                                       {115, 124},
                                                       {126, 131},
                                                       {162, 162},
                                                       {202, 202},
                                                       {215, 216},
                                                       {232, 232},
                                                       {250, 250},
                                                       {279, 279},
                                                       {283, 298},
                                                       {378, 379}}};
  for (const auto& [first, last] : kGaps) {
    if (id >= first && id <= last) return true;
  }
  return false;
}

std::vector<int> AllIds() {
  std::vector<int> ids;
  for (int id = 101; id <= 510; ++id) {
    if (!IsGap(id)) ids.push_back(id);
  }
  return ids;
}

std::uint64_t Checksum(Language language) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (const int id : AllIds()) {
    if (id == 213 || id == 214) continue;
    for (const char byte : std::to_string(id) + "=" + std::string(MessageText(id, language)) + "\n") {
      hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
  }
  return hash;
}

TEST(Messages, HoldThreeHundredAndSixtyRows) { EXPECT_EQ(AllIds().size(), 360U); }

TEST(Messages, EnglishColumnStandsAsItIs) { EXPECT_EQ(Checksum(Language::English), 0xb188e5708643ef15U); }

TEST(Messages, ItalianColumnStandsAsItIs) { EXPECT_EQ(Checksum(Language::Italian), 0xfe6a889ee99e9230U); }

TEST(Messages, NoTextIsEmpty) {
  for (const int id : AllIds()) {
    EXPECT_FALSE(English(id).empty()) << id;
    EXPECT_FALSE(Italian(id).empty()) << id;
  }
}

#ifndef NDEBUG
TEST(MessagesDeathTest, AnUnknownNumberIsAProgrammingError) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(static_cast<void>(MessageText(103, Language::English)), "id");
  EXPECT_DEATH(static_cast<void>(MessageText(511, Language::Italian)), "id");
}
#endif

TEST(Messages, OuterBlanksBelongToTheText) {
  const std::map<int, std::pair<const char*, const char*>> rows{
      {134, {"An error occurred while printing. ", "La stampa non è andata a buon fine. "}},
      {135, {"The file could not be opened. ", "Il file non può essere aperto. "}},
      {167, {"To change the volume click on 'Yes' ", "Per cambiare il Volume cliccare su 'Si' "}},
      {183, {"The data can not be stored. ", "I dati non possono essere scritti. "}},
      {198, {"Transducer: ", "Trasduttore: "}},
      {203, {"Information About", "Informazioni su "}},
      {205, {"Frequency - dB SplMax", "Grafico Frequenza - dB SplMax "}},
      {209, {"Version", "Versione "}},
      {280, {" Impedance Transducer", "Grafico impedenza"}},
      {342, {"Transducer: ", "Trasduttore: "}},
      {422, {"S&how Impedance ", "&Visualizza Grafico Impedenza"}},
      {462, {".- Date Added: ", ".- Data Creazione: "}},
      {510, {"Time offset in salmple @ 44.1KHz = ", "Sfasamento in campioni @ 44.1KHz = "}},
  };
  for (const auto& [id, texts] : rows) {
    EXPECT_EQ(English(id), texts.first) << id;
    EXPECT_EQ(Italian(id), texts.second) << id;
  }
}

TEST(Messages, MisprintsStand) {
  EXPECT_EQ(English(159), "pecify a value for the thickness greater than zero");
  EXPECT_EQ(English(168), "o change the Qtc click 'No' ");
  EXPECT_EQ(Italian(194), "Hai scelto due valori di frequenza tali chei Z2 è minore di Z1");
  EXPECT_EQ(English(248), "Frequancy");
  EXPECT_EQ(English(303), "Woofers connected in parallel to  one amplifier channel");
  EXPECT_EQ(Italian(306), "Spesssore legno Box");
  EXPECT_EQ(English(328), "Wooofers Wiring");
  EXPECT_EQ(English(337), "Loudspeaker  design project");
  EXPECT_EQ(English(443), "&Print Inpedance");
  EXPECT_EQ(English(453), "Import Pahse &Overlay");
  EXPECT_EQ(Italian(493), "N° Trsduttori");
}

TEST(Messages, FoldersKeepTheirBackslash) {
  EXPECT_EQ(English(467), "\\Project");
  EXPECT_EQ(Italian(467), "\\Progetti");
  EXPECT_EQ(English(469), "\\Response");
  EXPECT_EQ(Italian(471), "\\Impedenze");
  EXPECT_EQ(English(505), "\\Overlay");
  EXPECT_EQ(Italian(505), "\\Overlay");
}

TEST(Messages, EqualTextsKeepTheirOwnRows) {
  EXPECT_EQ(English(472), "Trapezoidal");
  EXPECT_EQ(English(503), "Trapezoidal");
  EXPECT_EQ(Italian(472), Italian(503));
  EXPECT_EQ(English(220), English(235));
  EXPECT_EQ(English(226), English(365));
}

TEST(Messages, TheLanguageOfAProgramIsThatOfItsStart) {
  Desk english(Language::English);
  Desk italian(Language::Italian);
  EXPECT_EQ(english.program.Text(210), "Closed Box");
  EXPECT_EQ(italian.program.Text(210), "Box Chiuso");
}

/// The variables that tell the language of a system, put back when the test ends.
class LanguageOfTheSystem : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
      const char* const value = std::getenv(name);
      if (value != nullptr) before_[name] = value;
      unsetenv(name);
    }
  }
  void TearDown() override {
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
      unsetenv(name);
      if (const auto found = before_.find(name); found != before_.end()) setenv(name, found->second.c_str(), 1);
    }
  }

 private:
  std::map<std::string, std::string> before_;
};

TEST_F(LanguageOfTheSystem, ItalianSystemSpeaksItalian) {
  setenv("LANG", "it_IT.UTF-8", 1);
  EXPECT_EQ(SystemLanguage(), Language::Italian);
  setenv("LANG", "it_CH", 1);
  EXPECT_EQ(SystemLanguage(), Language::Italian);
}

TEST_F(LanguageOfTheSystem, AnyOtherSystemSpeaksEnglish) {
  EXPECT_EQ(SystemLanguage(), Language::English);
  for (const char* const name : {"en_GB.UTF-8", "de_DE.UTF-8", "C", "POSIX", "i"}) {
    setenv("LANG", name, 1);
    EXPECT_EQ(SystemLanguage(), Language::English) << name;
  }
}

}  // namespace
}  // namespace zefirondo
