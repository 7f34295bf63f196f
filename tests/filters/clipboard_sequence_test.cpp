// Phase curves from the clipboard: what is taken, what is refused, and what is left behind.
#include "files/phase_file.h"
#include "filters/phase_desk.h"

namespace zefirondo {
namespace {

constexpr const char* kEmpty =
    "message information \"There are no data\" \"The clipboard is empty. Copy a sequence and try again\" [OK] -> OK\n";
constexpr const char* kStrange =
    "message information \"Values are not consistent\" \"Warning. The clipboard data are not consistent\" [OK] -> "
    "OK\n";
constexpr const char* kLogarithm =
    "message stop \"Error\" \"Error, logarithm of a number less than or equal to zero\" [OK] -> OK\nended error\n";

std::filesystem::path Staged(const Desk& desk, int number) {
  return desk.folder.path() / ("Sequenza" + std::to_string(number) + ".ovl");
}

TEST(ClipboardSequence, FirstIsTheBlackCurve) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_EQ(desk.state.PhaseCurveCount, 1);
  EXPECT_EQ(desk.state.PhaseHz1, kRowsHz);
  EXPECT_EQ(desk.state.PhaseDeg1, kBlackDeg);
  ExpectNear(desk.state.PhaseX1, kRowsX, 1e-12);
  EXPECT_TRUE(desk.state.PhaseX2.empty());
  EXPECT_TRUE(desk.tool.cmdset1.enabled);
  EXPECT_FALSE(desk.tool.cmdset2.enabled);
  EXPECT_FALSE(desk.tool.cmdcalcola.enabled);
  EXPECT_TRUE(desk.tool.cmdimporta.enabled);
  EXPECT_TRUE(desk.tool.mnuimportafase.enabled);
  ASSERT_EQ(desk.Colours(), std::vector<int>{0});
  EXPECT_EQ(desk.Chart()[0].degrees, Drawn(kBlackDeg));
}

TEST(ClipboardSequence, SecondIsTheMagentaCurve) {
  PhaseDesk desk;
  desk.PasteBoth();
  EXPECT_EQ(desk.state.PhaseCurveCount, 2);
  EXPECT_EQ(desk.state.PhaseHz2, kRowsHz);
  EXPECT_EQ(desk.state.PhaseDeg2, kMagentaDeg);
  ExpectNear(desk.state.PhaseX2, kRowsX, 1e-12);
  EXPECT_EQ(desk.state.PhaseDeg1, kBlackDeg);
  EXPECT_TRUE(desk.tool.cmdset2.enabled);
  EXPECT_TRUE(desk.tool.cmdcalcola.enabled);
  EXPECT_FALSE(desk.tool.cmdsomma.enabled);
  EXPECT_FALSE(desk.tool.cmdimporta.enabled);
  EXPECT_FALSE(desk.tool.mnuimportafase.enabled);
  ASSERT_EQ(desk.Colours(), (std::vector<int>{0, 16711935}));
  EXPECT_EQ(desk.Chart()[1].degrees, Drawn(kMagentaDeg));
}

TEST(ClipboardSequence, AThirdIsNotTaken) {
  PhaseDesk desk;
  desk.PasteBoth();
  EXPECT_EQ(desk.PasteText(kBlackText).refusal, Refusal::Disabled);
  EXPECT_EQ(desk.state.PhaseDeg2, kMagentaDeg);
  EXPECT_EQ(desk.platform.clipboard, kBlackText);
}

TEST(ClipboardSequence, IsStagedAsItsBareBytesAndClearsTheClipboard) {
  PhaseDesk desk;
  desk.PasteText(";Freq(Hz) 20 °C\r\n100 -5\r\n");
  EXPECT_EQ(ReadFileBytes(Staged(desk, 1)),
            ";Freq(Hz) 20 \xB0"
            "C\r\n100 -5\r\n");
  EXPECT_EQ(desk.platform.clipboard, "");
  desk.PasteText(kMagentaText);
  EXPECT_EQ(ReadFileBytes(Staged(desk, 2)), kMagentaText);
}

struct Form {
  const char* what;
  const char* text;
};

class ClipboardForm : public testing::TestWithParam<Form> {};

TEST_P(ClipboardForm, GivesTheSameTwoRows) {
  PhaseDesk desk;
  desk.PasteText(GetParam().text);
  EXPECT_EQ(desk.TakeOut(), "") << GetParam().what;
  EXPECT_EQ(desk.state.PhaseHz1, (Curve{100, 200, 0}));
  EXPECT_EQ(desk.state.PhaseDeg1, (Curve{-45, 90.5, 0}));
}

INSTANTIATE_TEST_SUITE_P(RowRules, ClipboardForm,
                         testing::Values(Form{"tabs", ";Freq(Hz)\r\n100\t-45\r\n200\t90.5\r\n"},
                                         Form{"blanks", ";Freq(Hz) anything, 1 2 3\r\n  100   -45\r\n 200 90.5  \r\n"},
                                         Form{"commas", ";Freq(Hz)\r\n100,-45\r\n200,90.5"},
                                         Form{"line feeds alone", ";Freq(Hz)\n100 -45\n200 90.5\n"},
                                         Form{"a row on two lines", ";Freq(Hz)\r\n100\r\n-45\r\n200 90.5\r\n"},
                                         Form{"exponents", ";Freq(Hz)Phase\r\n1E2 -4.5E1\r\n2.00E+02 905E-1\r\n"}));

TEST(ClipboardSequence, EmptySaysSoAndStartsOver) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.Click("frmFaseSh.cmdset1");
  desk.PasteText("");  // pictures and other kinds have no text either
  EXPECT_EQ(desk.TakeOut(), kEmpty);
  EXPECT_EQ(desk.state.PhaseCurveCount, 0);
  EXPECT_TRUE(desk.state.PhaseX1.empty());
  EXPECT_FALSE(desk.state.Set1PhaseStored);
  EXPECT_FALSE(std::filesystem::exists(Staged(desk, 1)));
  EXPECT_FALSE(desk.tool.cmdset1.enabled);
  EXPECT_TRUE(desk.tool.cmdimporta.enabled);
  EXPECT_TRUE(desk.Chart().empty());
}

class StrangeClipboard : public testing::TestWithParam<Form> {};

TEST_P(StrangeClipboard, IsRefusedAndLeavesTheCurves) {
  PhaseDesk desk;
  desk.PasteText(GetParam().text);
  EXPECT_EQ(desk.TakeOut(), kStrange) << GetParam().what;
  EXPECT_EQ(desk.state.PhaseCurveCount, 0);
  EXPECT_TRUE(desk.state.PhaseX1.empty());
  EXPECT_TRUE(desk.state.PhaseDeg1.empty());
  EXPECT_EQ(desk.platform.clipboard, "");
  EXPECT_TRUE(desk.tool.cmdimporta.enabled);
  EXPECT_FALSE(desk.tool.cmdset1.enabled);
  EXPECT_TRUE(desk.Chart().empty());
  EXPECT_EQ(desk.program.run, RunState::Running);
}

INSTANTIATE_TEST_SUITE_P(Headings, StrangeClipboard,
                         testing::Values(Form{"prose", "Dear Sir, the woofer has come.\n"},
                                         Form{"rows alone", "100 -45\r\n200 90\r\n"},
                                         Form{"small letters", ";freq(hz)\r\n100 -45\r\n"},
                                         Form{"a blank before it", " ;Freq(Hz)\r\n100 -45\r\n"},
                                         Form{"an empty line before it", "\r\n;Freq(Hz)\r\n100 -45\r\n"},
                                         Form{"eight of its nine characters", ";Freq(Hz"},
                                         Form{"no semicolon", "Freq(Hz)\r\n100 -45\r\n"}, Form{"a line end", "\n"}));

TEST(StrangeClipboard, BehindAGoodCurveKeepsItAndTheNextOneTakesItsPlace) {
  PhaseDesk desk;
  desk.PasteText(kBlackText);
  desk.PasteText("nothing of the kind, but long enough to cover what stood there before: fifty more characters\n");
  EXPECT_EQ(desk.TakeOut(), kStrange);
  EXPECT_EQ(desk.state.PhaseCurveCount, 0);
  EXPECT_EQ(desk.state.PhaseDeg1, kBlackDeg);
  EXPECT_EQ(desk.Colours(), std::vector<int>{0});
  EXPECT_TRUE(desk.tool.cmdset1.enabled);
  desk.PasteText(kMagentaText);
  EXPECT_EQ(desk.state.PhaseCurveCount, 1);
  EXPECT_EQ(desk.state.PhaseDeg1, kMagentaDeg);
  EXPECT_TRUE(desk.state.PhaseDeg2.empty());
}

TEST(StagedSequence, KeepsTheTailOfALongerOneUntilTheToolStartsOver) {
  PhaseDesk desk;
  desk.PasteText("xFreq(Hz)\n10 -1\n20 -2\n30 -3\n");  // refused, and staged
  desk.PasteText(";Freq(Hz)\n50 -5\n");                // as long as the first two lines
  EXPECT_EQ(desk.state.PhaseHz1, (Curve{50, 20, 30, 0}));
  EXPECT_EQ(ReadFileBytes(Staged(desk, 1)), ";Freq(Hz)\n50 -5\n20 -2\n30 -3\n");
  desk.Click("frmFaseSh.cmdcancella");
  desk.PasteText(";Freq(Hz)\n50 -5\n");
  EXPECT_EQ(desk.state.PhaseHz1, (Curve{50, 0}));
}

TEST(ClipboardSequence, OfTheHeadingAloneIsACurveWithoutRows) {
  PhaseDesk desk;
  desk.PasteText(";Freq(Hz)\r\n");
  EXPECT_EQ(desk.state.PhaseX1, (Curve{0}));
  EXPECT_EQ(desk.state.PhaseCurveCount, 1);
  EXPECT_TRUE(desk.Chart().empty());
}

class LogarithmOfASequence : public testing::TestWithParam<Form> {};

TEST_P(LogarithmOfASequence, EndsTheProgram) {
  PhaseDesk desk;
  desk.PasteText(GetParam().text);
  EXPECT_EQ(desk.TakeOut(), kLogarithm) << GetParam().what;
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
}

INSTANTIATE_TEST_SUITE_P(Rows, LogarithmOfASequence,
                         testing::Values(Form{"zero", ";Freq(Hz)\r\n100 -45\r\n0 20\r\n"},
                                         Form{"below zero", ";Freq(Hz)\r\n-100 -45\r\n"},
                                         Form{"no number", ";Freq(Hz)\r\nlow -45\r\n"},
                                         Form{"a second heading", ";Freq(Hz)\r\n;Freq(Hz) Phase\r\n100 -45\r\n"}));

TEST(ClipboardSequence, CutOffInARowShowsThePlainTextAndEnds) {
  PhaseDesk desk;
  desk.PasteText(";Freq(Hz)\r\n100 -45\r\n200");
  EXPECT_EQ(desk.TakeOut(), "message none \"Zefirondo\" \"Input past end of file\" [OK] -> OK\nended error\n");
}

TEST(ClipboardSequence, MayBeHuge) {
  PhaseDesk desk;
  std::string text = ";Freq(Hz)\r\n";
  constexpr int kRows = 200000;
  for (int i = 1; i <= kRows; ++i) text += std::to_string(i) + ".5\t" + std::to_string(i % 360 - 180) + "\r\n";
  desk.PasteText(text);
  EXPECT_EQ(desk.TakeOut(), "");
  ASSERT_EQ(desk.state.PhaseHz1.size(), kRows + 1U);
  EXPECT_EQ(desk.state.PhaseHz1[kRows - 1], kRows + 0.5);
  EXPECT_EQ(desk.state.PhaseDeg1[359], -180);
}

TEST(ClipboardSequence, HugeAndStrangeIsRefusedToo) {
  PhaseDesk desk;
  desk.PasteText(std::string(8'000'000, 'x'));
  EXPECT_EQ(desk.TakeOut(), kStrange);
  desk.PasteText(std::string("\0;Freq(Hz)\n", 11));  // what a program may put there as text
  EXPECT_EQ(desk.TakeOut(), kStrange);
}

TEST(ClipboardSequence, SpeaksItalianToo) {
  PhaseDesk desk(Language::Italian);
  desk.PasteText("");
  desk.PasteText("altro");
  EXPECT_EQ(desk.TakeOut(),
            "message information \"Non ci sono dati\" \"ClipBoard Vuota. Copiare una sequenza e riprovare\" [OK] -> "
            "OK\n"
            "message information \"Dati non coerenti\" \"Attenzione. Nella clipboard ci sono dati diversi\" [OK] -> "
            "OK\n");
}

TEST(StagedSequence, InAFolderThatTakesNothingEndsWithTheText) {
  PhaseDesk desk;
  std::filesystem::create_directory(Staged(desk, 1));  // a folder stands where the file should
  desk.PasteText(kBlackText);
  EXPECT_EQ(desk.program.run, RunState::EndedByFailure);
  EXPECT_NE(desk.TakeOut().find("Path/File access error"), std::string::npos);
  EXPECT_TRUE(desk.state.PhaseX1.empty());
}

}  // namespace
}  // namespace zefirondo
