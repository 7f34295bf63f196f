// The commands of a script that do something, to the letter: what each refuses, holds and prints.
#include "runner/contract.h"

namespace zefirondo {
namespace {

// ---- refusing ----

TEST_F(Contract, RefusesEveryCommandOnAHiddenPage) {
  EXPECT_EQ(
      Run(kNew + "focus txtfs\ntype txtfs 3\nset txtfs 3\nclick cmdreset\ndblclick txtl\nrightclick txtvolnetto\n"
                 "pick cmbql 10\nfocused\n"),
      (Lines{"refused txtfs: hidden", "refused txtfs: hidden", "refused txtfs: hidden", "refused cmdreset: hidden",
             "refused txtl: hidden", "refused txtvolnetto: hidden", "refused cmbql: hidden", "focused txtproduttore"}));
}

TEST_F(Contract, RefusesEveryCommandInAWindowThatIsNotOpen) {
  EXPECT_EQ(Run("start\nfocus frmopzioni.txtrs\ntype frmopzioni.txtrs 3\nset frmopzioni.txtrs 3\n"
                "click frmopzioni.cmdok\ndblclick frmopzioni.txtrs\nrightclick frmopzioni.txtrs\n"
                "choose frmopzioni.mnuchiudi\nrelease frmspl.pctgrafspl\nclose frmopzioni\n"),
            (Lines{"refused frmopzioni.txtrs: not open", "refused frmopzioni.txtrs: not open",
                   "refused frmopzioni.txtrs: not open", "refused frmopzioni.cmdok: not open",
                   "refused frmopzioni.txtrs: not open", "refused frmopzioni.txtrs: not open",
                   "refused frmopzioni.mnuchiudi: not open", "refused frmspl.pctgrafspl: not open",
                   "refused frmopzioni: not open"}));
}

TEST_F(Contract, RefusesAWindowThatThePageHides) {
  EXPECT_EQ(RunDesigned("tab par\nclose frmgrafcassa\nclick frmgrafcassa.cmdset1\nchoose frmgrafcassa.mnuspl\n"
                        "press frmgrafcassa.pctgraf 30 10\nwindows\n"),
            (Lines{"refused frmgrafcassa: hidden", "refused frmgrafcassa.cmdset1: hidden",
                   "refused frmgrafcassa.mnuspl: hidden", "refused frmgrafcassa.pctgraf: hidden",
                   "windows frmthsm frmgrafcassa(hidden) mdithsm"}));
}

TEST_F(Contract, RefusesLockedFieldsToEveryWayOfEntering) {
  EXPECT_EQ(RunDesigned("tab par\ntype txtfs 3\nset txtfs 3\ntab gen\npick cmbnumvc 2\nget txtfs cmbnumvc\n"),
            (Lines{"refused txtfs: locked", "refused txtfs: locked", "refused cmbnumvc: locked", "txtfs = \"35\"",
                   "cmbnumvc = \"1\""}));
}

TEST_F(Contract, LetsALockedFieldHaveTheFocus) {
  EXPECT_EQ(RunDesigned("tab par\nfocus txtbl\nfocused\n"), Lines{"focused txtbl"});
}

TEST_F(Contract, RefusesByTheNameAsItWasGiven) {
  EXPECT_EQ(Run(kNew + "set frmthsm.txtfs 3\nchoose frmthsm.mnustampa\n"),
            (Lines{"refused frmthsm.txtfs: hidden", "refused frmthsm.mnustampa: disabled"}));
}

TEST_F(Contract, RefusesTheDisabledFieldsOfAPrism) {
  EXPECT_EQ(RunDesigned("set txtld 20\ntype cmbgradi 10\npick cmbgradi 10\nfocus txtld\n"),
            (Lines{"refused txtld: disabled", "refused cmbgradi: disabled", "refused cmbgradi: disabled",
                   "refused txtld: disabled"}));
}

TEST_F(Contract, RefusesEveryEntryOfTheFrameOnlyWhileTheSheetStands) {
  const Lines entries{"mnuuscita", "mnuapriprogetto", "mnuthisma",       "mnuinsmanuale", "mnuopzioni",     "mnudelay",
                      "munindu",   "mnucapa",         "mnucalcolatrice", "mnuguida",      "mnuinformazioni"};
  std::string script = kNew;
  Lines expected;
  for (const std::string& entry : entries) {
    script += "choose mdithsm." + entry + "\n";
    expected.push_back("refused mdithsm." + entry + ": hidden");
  }
  EXPECT_EQ(Run(script), expected);
  EXPECT_EQ(Run(kNew + "choose mnuesci\nchoose mdithsm.mnuopzioni\nwindows\n"), Lines{"windows frmopzioni mdithsm"});
}

// ---- focus ----

TEST_F(Contract, PrintsHeldForEveryCommandThatMovesTheFocus) {
  const std::string zero = kNew + "tab par\nset txtfs 0\n";
  for (const char* const command : {"focus txtbl", "leave", "type txtbl 5", "set txtbl 5", "dblclick txtbl",
                                    "rightclick txtbl", "tab gen", "tab par", "focus cmdreset"}) {
    EXPECT_EQ(Run(zero + command + "\nfocused\nget txtbl\ntabs\n"),
              (Lines{kZero, "held txtfs", "focused txtfs", "txtbl = \"\"", "tabs gen par dim imp selected=par"}))
        << command;
  }
}

TEST_F(Contract, HoldsAClickThatTakesTheFocusAway) {
  EXPECT_EQ(RunDesigned("set txtlungmis 0\nclick frmgrafcassa.cmdset1\nget Set1BoxStored\n"),
            (Lines{kZero, "held txtlungmis", "Set1BoxStored = 0"}));
}

TEST_F(Contract, HoldsTheFocusThatIsGivenBack) {
  EXPECT_EQ(Run(kNew + "set txthg 0\nfocus txtmarca\nfocused\n"), (Lines{kZero, "held txthg", "focused txthg"}));
}

TEST_F(Contract, NamesAHeldControlOfAnotherWindowInFull) {
  EXPECT_EQ(Run("start\nchoose mdithsm.mnuopzioni\nset frmopzioni.txtrs 0\nfocus frmopzioni.txtspessore\nfocused\n"),
            (Lines{kZero, "held frmopzioni.txtrs", "focused frmopzioni.txtrs"}));
}

TEST_F(Contract, LeavesTheFocusWhereItIsForAMenuEntry) {
  const Lines lines = Run(kNew + "set txtpotenza 0\nchoose mnuguida\nfocused\n");
  EXPECT_EQ(lines.back(), "focused txtpotenza");
  EXPECT_EQ(lines.size(), 2U);
}

TEST_F(Contract, GivesTheResetTheFocusPastEveryTest) {
  EXPECT_EQ(Run(kNew + "tab par\nset txtfs 0\nclick cmdreset\nfocused\nget txtfs\n"),
            (Lines{"focused cmdreset", "txtfs = \"\""}));
}

TEST_F(Contract, RunsNoLeavingTestForTheCloseBox) {
  EXPECT_EQ(Run(kNew + "set txtpotenza 0\nclose frmthsm\nwindows\n"), Lines{"windows mdithsm"});
}

TEST_F(Contract, LeavesWithoutAFocusQuietly) {
  EXPECT_EQ(Run("start\nleave\nleave\nfocused\n"), Lines{"focused none"});
}

// ---- entering ----

TEST_F(Contract, TypesOnWhereTheCaretStands) {
  EXPECT_EQ(Run(kNew + "type txtmarca ab\ntype txtmarca cd\nget txtmarca\n"), Lines{"txtmarca = \"abcd\""});
  EXPECT_EQ(Run(kNew + "set txtmarca ab\ntype txtmarca cd\nget txtmarca\n"), Lines{"txtmarca = \"abcd\""});
}

TEST_F(Contract, TypesOnInTheFieldThatAKeyLeadsTo) {
  EXPECT_EQ(
      Run(kNew + "type txtpotenza 12{ENTER}8{TAB}90\nget txtpotenza txtimpedenza txtsensibilita\nfocused\n"),
      (Lines{"txtpotenza = \"12\"", "txtimpedenza = \"8\"", "txtsensibilita = \"90\"", "focused txtsensibilita"}));
}

TEST_F(Contract, StopsTypingAtAKeyThatIsHeld) {
  EXPECT_EQ(Run(kNew + "type txtpotenza {TAB}8\nget txtpotenza txtimpedenza\n"),
            (Lines{kZero, "held txtpotenza", "txtpotenza = \"\"", "txtimpedenza = \"\""}));
}

TEST_F(Contract, ForgetsAHeldKeyWithTheNextOne) {
  EXPECT_EQ(Run(kNew + "type txtpotenza {TAB}\ntype txtpotenza 5\nget txtpotenza\n"),
            (Lines{kZero, "held txtpotenza", "txtpotenza = \"5\""}));
}

TEST_F(Contract, TypesBracesThatNameNoKey) {
  EXPECT_EQ(Run(kNew + "type txtmarca {F1}{enter}\nget txtmarca\n"), Lines{"txtmarca = \"{F1}{enter}\""});
}

TEST_F(Contract, TypesNothingOfAnEmptyText) {
  EXPECT_EQ(Run(kNew + "set txtmarca ab\nleave\ntype txtmarca \"\"\nget txtmarca\nfocused\n"),
            (Lines{"txtmarca = \"ab\"", "focused txtmarca"}));
}

TEST_F(Contract, SetsAnEmptyText) {
  EXPECT_EQ(Run(kNew + "set txtmarca ab\nset txtmarca \"\"\nget txtmarca\n"), Lines{"txtmarca = \"\""});
}

TEST_F(Contract, PicksWithTheClickEvenWhenTheTextStays) {
  // The click of the air factor marks the project, whatever was shown before.
  const Lines lines = RunDesigned("pick cmbk 1.27(10%)\nfile \"" + (folder.path() / "k.pro").string() +
                                  "\"\nchoose mnusalva\nget ProjectModified\npick cmbk 1.27(10%)\n"
                                  "get ProjectModified cmbk Kinternal\nfocused\n");
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[1], "ProjectModified = 0");
  EXPECT_EQ(lines[2], "ProjectModified = -1");
  EXPECT_EQ(lines[3], "cmbk = \"1.27(10%)\"");
  EXPECT_EQ(lines[4], "Kinternal = 1.2727272700000001");
  EXPECT_EQ(lines[5], "focused cmbk");
}

TEST_F(Contract, ClicksOptionsAndKeysOfAnArray) {
  EXPECT_EQ(Run("start\nchoose mdithsm.mnuopzioni\nclick frmopzioni.optserie\n"
                "get frmopzioni.optserie frmopzioni.optbiamp\nchoose frmopzioni.mnuchiudi\n"),
            (Lines{"frmopzioni.optserie = -1", "frmopzioni.optbiamp = 0"}));
  const Lines lines =
      Run("start\nchoose mdithsm.mnucalcolatrice\nclick frmcalcolatrice.Number(7)\n"
          "click frmcalcolatrice.Number(4)\nget frmcalcolatrice.Readout\n");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_NE(lines[0].find("74"), std::string::npos) << lines[0];
}

TEST_F(Contract, KnowsElementsByTheirPlaceOnly) {
  for (const char* const name : {"imgforma", "imgforma(2)", "imgforma(-1)", "imgforma()", "imgforma(x)", "txtfs(-1)",
                                 "txtfs(0)", "txtfs()", "frmcalcolatrice.Number", "frmcalcolatrice.Number(10)"}) {
    EXPECT_EQ(Try(std::string("get ") + name + "\n").error, std::string("line 1: there is no ") + name);
  }
}

TEST_F(Contract, ReadsTextsWithTheirEscapes) {
  EXPECT_EQ(Run(kNew + R"(set txtmarca "a\"b\\c\nd\re\tf")" + "\nget txtmarca\n"),
            Lines{R"(txtmarca = "a\"b\\c\nd\re\tf")"});
  EXPECT_EQ(Try("echo \"a\\qb\"\n").error, "line 1: unknown escape \\q");
}

// ---- starting ----

TEST_F(Contract, TakesQuotesOfTheCommandLineForPartOfThePath) {
  static_cast<void>(folder.Write("given.pro", ""));
  const std::string path = (folder.path() / "given.pro").string();
  const Lines lines = Run(R"(start "\")" + path + R"(\"")" + "\nget FilePath\n");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].starts_with(R"(message stop "Error" "The file could not be opened. )")) << lines[0];
  EXPECT_EQ(lines[1], R"(FilePath = "\")" + path + R"(\"")");
  // Without them the same path is found, and is an empty file.
  EXPECT_EQ(Run("start \"" + path + "\"\n"),
            Lines{R"(message stop "Error" "The file could not be opened. 62" [OK] -> OK)"});
}

}  // namespace
}  // namespace zefirondo
