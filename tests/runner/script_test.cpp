// Every command of a script, and every line that it prints.
#include "runner/script.h"

#include <gtest/gtest.h>

#include "core/numbers.h"
#include "response/plain_box.h"
#include "response/sweep.h"
#include "runner/process.h"
#include "runner/words.h"

namespace zefirondo {
namespace {

using Lines = std::vector<std::string>;

class ScriptRun : public testing::Test {
 protected:
  /// Runs lines in the program's own folder; a script that stops fails the test.
  Lines Run(const std::string& script) {
    const ScriptResult result = Try(script);
    EXPECT_EQ(result.error, "");
    return Split(result.out);
  }

  ScriptResult Try(const std::string& script) {
    ScriptOptions options;
    options.folder = folder.path();
    options.today = {20, 11, 2026};
    return RunScript(script, options);
  }

  /// What stopped the script.
  std::string ErrorOf(const std::string& script) { return Try(script).error; }

  static Lines Split(const std::string& out) {
    Lines lines;
    for (std::size_t at = 0; at < out.size();) {
      const std::size_t end = out.find('\n', at);
      lines.push_back(out.substr(at, end - at));
      at = end + 1;
    }
    return lines;
  }

  TemporaryFolder folder;
};

const std::string kNew = "start\nchoose mdithsm.mnuinsmanuale\n";

/// A vented design up to its box tab.
const std::string kDesign = kNew +
                            "set txtpotenza 100\nset txtimpedenza 8\nset txtsensibilita 90\nset txtxmax 5\n"
                            "tab par\nset txtfs 35\nset txtrvc 5.6\nset txtqmesin 4.2\nset txtbl 9.5\nset txtd 210\n"
                            "set txtqes 0.45\nset txtqts 0.41\nset txtmms 0.038\n"
                            "tab dim\nset txtforo 230\nset txtprof 110\nset txtlagmagne 140\nset txtprofmag 50\n"
                            "set txtesterno 260\nset txtspesbordo 8\nset txtdiambob 38\nfocus txtvolume\n"
                            "tab par\nanswer yes\nclick cmdcalcola\n";
const std::string kProposal =
    R"(message information "EBP= 77.7777" "For this transducer is recommended a Vented Box\nDo you want to create a )"
    R"(Vented Box?" [Yes No] -> Yes)";

// ---- the whole road ----

TEST_F(ScriptRun, WalksTheExampleOfTheGuide) {
  const std::string road =
      "start\nchoose mdithsm.mnuinsmanuale\nset txtpotenza 100\nset txtimpedenza 8\nset txtsensibilita 90\n"
      "set txtxmax 5\ntab par\nset txtfs 35\nset txtrvc 5.6\nset txtqmesin 4.2\nset txtbl 9.5\nset txtd 210\n"
      "set txtqes 0.45\nset txtqts 0.41\nset txtmms 0.038\ntab dim\nset txtforo 230\nset txtprof 110\n"
      "set txtlagmagne 140\nset txtprofmag 50\nset txtesterno 260\nset txtspesbordo 8\nset txtdiambob 38\n"
      "focus txtvolume\ntab par\nanswer yes\nclick cmdcalcola\ntabs\n"
      "get Qts EBP Vb Fb txtvolnetto txtfb txtlungmis\ncurve BoxDb 40 60\nfile design.pro\nchoose mnusalva\n"
      "choose mnuesci\nclose mdithsm\n";
  const Finished run = RunProcess(folder, "--language en --today 20/11/2026 --folder .", road);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.error, "");
  const Lines lines = Split(run.out);
  ASSERT_EQ(lines.size(), 2U + 7U + 22U + 2U);
  EXPECT_EQ(lines[0], kProposal);
  EXPECT_EQ(lines[1], "tabs gen par dim ref imp selected=ref");
  const auto expect_number = [&](std::size_t line, const std::string& name, double value, double tolerance) {
    const std::string start = name + " = ";
    ASSERT_TRUE(lines[line].starts_with(start)) << lines[line];
    EXPECT_NEAR(std::stod(lines[line].substr(start.size())), value, tolerance) << name;
  };
  // Worked in Python from the formulas: Qes' = 5.7/5.6·0.45; Qts = 4.2·Qes'/(4.2 + Qes');
  // Sd = 0.03463 m² as the field shows it; Cms = 1/(ω²·0.038); Vas = ρ·c²·Sd²·Cms = 0.0926244379 m³;
  // Vb = Vas·20·Qts^3.3; Fb = 35·(Vas/Vb)^0.31; the round port of the least section, 70.43 cm², is 10.2420 cm long.
  expect_number(2, "Qts", 0.4129959746981024, 1e-15);
  expect_number(3, "EBP", 35 / 0.45, 1e-12);
  expect_number(4, "Vb", 0.10008679519712955, 1e-14);
  expect_number(5, "Fb", 34.169307178554135, 1e-12);
  EXPECT_EQ(lines[6], "txtvolnetto = \"100.086\"");
  EXPECT_EQ(lines[7], "txtfb = \"34.1693\"");
  EXPECT_EQ(lines[8], "txtlungmis = \"10.2420\"");
  EXPECT_EQ(lines[9], "BoxDb upper=6827");
  const plain::Vented box{0.10008679519712955L, 35.0L, 0.4129959746981024L, 34.169307178554135L,
                          0.0926244379339613L,  7};
  for (std::size_t i = 40; i <= 60; ++i) {
    const auto level = static_cast<double>(plain::VentedDb(box, Sweep5k().hertz[i]));
    expect_number(10 + i - 40, "BoxDb(" + std::to_string(i) + ")", level, 1e-9);
  }
  EXPECT_EQ(lines[31], "dialog save \"Zefirondo Project (*.pro)|*.pro\" default=\".pro\" folder=\"" +
                           (folder.path() / "Project").string() + "\" -> design.pro");
  EXPECT_EQ(lines[32], "ended");
  EXPECT_NE(ReadFileBytes(folder.path() / "design.pro").find("\r\nNetVolume=100.086\r\n"), std::string::npos);
}

// ---- starting and ending ----

TEST_F(ScriptRun, StartsOnceOnly) { EXPECT_EQ(ErrorOf("start\nstart\n"), "line 2: the program was started before"); }

TEST_F(ScriptRun, StartsWithTheWholeCommandLineAsAPath) {
  const Lines lines = Run("start a missing project.pro\nget FilePath ProjectPath HasProjectPath\n");
  EXPECT_EQ(lines, (Lines{R"(message stop "Error" "The file could not be opened. 53" [OK] -> OK)",
                          "FilePath = \"a missing project.pro\"", "ProjectPath = \"\"", "HasProjectPath = -1"}));
}

TEST_F(ScriptRun, RefusesEverythingBeforeTheStart) {
  EXPECT_EQ(Run("choose mdithsm.mnuinsmanuale\nset txtfs 3\nclose frmthsm\ntab par\n"),
            (Lines{"refused mdithsm.mnuinsmanuale: not open", "refused txtfs: not open", "refused frmthsm: not open",
                   "refused par: not open"}));
}

TEST_F(ScriptRun, AnswersQuestionsAfterTheEnd) {
  EXPECT_EQ(Run("start\nclose mdithsm\nset txtfs 3\nget txtfs\ntabs\nleave\necho x\n"),
            (Lines{"ended", "ended", "txtfs = \"\"", "tabs selected=", "ended", "echo x"}));
}

TEST_F(ScriptRun, EndsThroughTheMenuToo) { EXPECT_EQ(Run("start\nchoose mdithsm.mnuuscita\n"), Lines{"ended"}); }

// ---- what a person could not do ----

TEST_F(ScriptRun, RefusesWhatIsDisabled) {
  EXPECT_EQ(Run(kNew + "choose mnustampa\ntab par\nclick cmdcalcola\n"),
            (Lines{"refused mnustampa: disabled", "refused cmdcalcola: disabled"}));
}

TEST_F(ScriptRun, RefusesWhatIsNotShown) {
  EXPECT_EQ(
      Run(kNew + "set txtfs 35\nclick cmdcalcola\ntab ref\ntab chi\n"),
      (Lines{"refused txtfs: hidden", "refused cmdcalcola: hidden", "refused ref: hidden", "refused chi: hidden"}));
}

TEST_F(ScriptRun, RefusesTheMenuOfTheFrameWhileTheSheetIsOpen) {
  EXPECT_EQ(Run(kNew + "choose mdithsm.mnuuscita\n"), Lines{"refused mdithsm.mnuuscita: hidden"});
}

TEST_F(ScriptRun, RefusesWhatIsLocked) {
  EXPECT_EQ(Run(kNew + "tab par\nset txtzmax 4\ntype txtbw 4\nget txtzmax txtbw\n"),
            (Lines{"refused txtzmax: locked", "refused txtbw: locked", "txtzmax = \"\"", "txtbw = \"\""}));
}

TEST_F(ScriptRun, RefusesAWindowThatIsNotOpen) {
  EXPECT_EQ(Run("start\nclose frmgrafcassa\npress frmgrafcassa.pctgraf 30 10\nclick frmgrafcassa.cmdset1\n"),
            (Lines{"refused frmgrafcassa: not open", "refused frmgrafcassa.pctgraf: not open",
                   "refused frmgrafcassa.cmdset1: not open"}));
}

// ---- focus ----

TEST_F(ScriptRun, MovesTheFocusAndTellsIt) {
  EXPECT_EQ(Run("start\nfocused\nchoose mdithsm.mnuinsmanuale\nfocused\nfocus txtmarca\nfocused\nleave\nfocused\n"),
            (Lines{"focused none", "focused txtproduttore", "focused txtmarca", "focused none"}));
}

TEST_F(ScriptRun, TellsTheControlThatATestHolds) {
  // A required field that reads 0 keeps the focus.
  const std::string warning = R"(message stop "Error" "Please enter a non zero value" [OK] -> OK)";
  EXPECT_EQ(Run(kNew + "set txtpotenza 0\nfocus txtimpedenza\nfocused\nset txtimpedenza 8\nget txtimpedenza\n"
                       "click cmdnext\ntab par\nleave\ntabs\n"),
            (Lines{warning, "held txtpotenza", "focused txtpotenza", warning, "held txtpotenza", "txtimpedenza = \"\"",
                   "refused cmdnext: disabled", warning, "held txtpotenza", warning, "held txtpotenza",
                   "tabs gen par dim imp selected=gen"}));
}

TEST_F(ScriptRun, LeavesMenusAndTheResetToThemselves) {
  // Neither runs the test of the field that has the focus.
  EXPECT_EQ(Run(kNew + "tab par\nset txtfs 0\nclick cmdreset\nget txtfs\n"), Lines{"txtfs = \"\""});
  EXPECT_EQ(Run(kNew + "set txtpotenza 0\nchoose mnuesci\nwindows\n"), Lines{"windows mdithsm"});
}

TEST_F(ScriptRun, CannotFocusALabel) {
  EXPECT_EQ(ErrorOf(kNew + "focus frmgrafcassa.lblhz\n"), "line 3: frmgrafcassa.lblhz cannot take the focus");
}

// ---- entering ----

TEST_F(ScriptRun, TypesThroughTheKeyFilter) {
  const std::string warning = R"(message stop "Error" "Warning: Inputs must be a number" [OK] -> OK)";
  EXPECT_EQ(Run(kNew + "type txtpotenza 1a2,5\nget txtpotenza\n"), (Lines{warning, "txtpotenza = \"12.5\""}));
}

TEST_F(ScriptRun, TypesOverWhatIsSelected) {
  EXPECT_EQ(Run(kNew + "set txtmarca old\nfocus txtmodello\ntype txtmarca new\nget txtmarca\n"),
            Lines{"txtmarca = \"new\""});
}

TEST_F(ScriptRun, TypesTheKeysWithNames) {
  EXPECT_EQ(Run(kNew + "type txtpotenza 12{BACKSPACE}3{ENTER}\nget txtpotenza\nfocused\ntype txtimpedenza 8{TAB}\n"
                       "focused\n"),
            (Lines{"txtpotenza = \"13\"", "focused txtimpedenza", "focused txtsensibilita"}));
}

TEST_F(ScriptRun, TypesUtf8) {
  EXPECT_EQ(Run(kNew + "type txtmarca \"è µ€\"\nget txtmarca\n"), Lines{"txtmarca = \"è µ€\""});
}

TEST_F(ScriptRun, SetsPastTheKeyFilter) {
  EXPECT_EQ(Run(kNew + "set txtpotenza \"a b\\nc\"\nget txtpotenza\n"), Lines{R"(txtpotenza = "a b\nc")"});
}

TEST_F(ScriptRun, SetsTheTextAsOneChange) {
  // A change of the last required rating opens the button to the next page.
  EXPECT_EQ(Run(kNew + "set txtpotenza 1\nset txtimpedenza 8\nset txtsensibilita 9\nlook cmdnext\nset txtxmax 5\n"
                       "look cmdnext\n"),
            (Lines{"cmdnext enabled=0 visible=1 locked=0 back=face fore=text",
                   "cmdnext enabled=1 visible=1 locked=0 back=face fore=text"}));
}

TEST_F(ScriptRun, PicksItemsOfAList) {
  EXPECT_EQ(Run(kDesign + "pick cmbql 10\nget cmbql Ql frmgrafcassa.txtF3dB\n"),
            (Lines{kProposal, "cmbql = \"10\"", "Ql = 10", "frmgrafcassa.txtF3dB = \"****\""}));
  EXPECT_EQ(ErrorOf(kDesign + "pick cmbql 8\n").substr(0, 4), "line");
  EXPECT_EQ(ErrorOf(kNew + "pick txtmarca x\n"), "line 3: txtmarca has no list");
}

TEST_F(ScriptRun, ClicksDoubleClicksAndClicksRight) {
  EXPECT_EQ(Run(kDesign + "click frmgrafcassa.cmdset1\nget frmgrafcassa.chkonoff1\nclick frmgrafcassa.chkonoff1\n"
                          "get frmgrafcassa.chkonoff1 Set1BoxShown Set1BoxStored\n"),
            (Lines{kProposal, "frmgrafcassa.chkonoff1 = -1", "frmgrafcassa.chkonoff1 = 0", "Set1BoxShown = 0",
                   "Set1BoxStored = -1"}));
  const Lines double_click = Run(kDesign + "dblclick txtl\nwindows\n");
  EXPECT_EQ(double_click.back().substr(0, 22), "windows frmdimensioni ");
}

TEST_F(ScriptRun, ClicksAPictureOfAnArray) {
  EXPECT_EQ(Run(kDesign + "look imgforma(0) imgforma(1)\nclick imgforma(0)\nlook imgforma(0) imgforma(1)\n"),
            (Lines{kProposal, "imgforma(0) enabled=1 visible=1 locked=0 back=face fore=text",
                   "imgforma(1) enabled=1 visible=0 locked=0 back=face fore=text",
                   "imgforma(0) enabled=1 visible=0 locked=0 back=face fore=text",
                   "imgforma(1) enabled=1 visible=1 locked=0 back=face fore=text"}));
}

TEST_F(ScriptRun, SelectsTabs) {
  EXPECT_EQ(Run(kNew + "tabs\ntab imp\ntabs\ntab dim\ntabs\n"),
            (Lines{"tabs gen par dim imp selected=gen", "tabs gen par dim imp selected=imp",
                   "tabs gen par dim imp selected=dim"}));
  EXPECT_EQ(ErrorOf(kNew + "tab nowhere\n"), "line 3: there is no tab nowhere");
}

TEST_F(ScriptRun, PressesOnAPlot) {
  const Lines lines = Run(kDesign +
                          "press frmgrafcassa.pctgraf 40 25\nget frmgrafcassa.txtpos\n"
                          "place frmgrafcassa.txtpos\nrelease frmgrafcassa.pctgraf\nlook frmgrafcassa.txtpos\n"
                          "get BoxScaleTop\n");
  ASSERT_EQ(lines.size(), 5U);
  // The top is 65: 65 − 25 − 40 = 0 dB at 100 Hz. "100.00 0.00" has 11 characters, and 40 is right of 33.98:
  // left 40 − 11 + 7. 25 is above the half of 65: 25 + 60/(6015/65) = 25.648379...
  EXPECT_EQ(lines[1], "frmgrafcassa.txtpos = \"100.00 Hz ; 0.00 dB\"");
  EXPECT_EQ(lines[2].substr(0, lines[2].find(" top=")), "frmgrafcassa.txtpos left=36");
  EXPECT_NE(lines[2].find(" top=25.6483790523"), std::string::npos) << lines[2];
  EXPECT_TRUE(lines[2].ends_with(" width=11")) << lines[2];
  EXPECT_EQ(lines[3].substr(0, 38), "frmgrafcassa.txtpos enabled=1 visible=");
  EXPECT_EQ(lines[3][38], '0');
  EXPECT_EQ(lines[4], "BoxScaleTop = 65");
}

TEST_F(ScriptRun, NeedsNumbersForAPlace) {
  EXPECT_EQ(ErrorOf(kDesign + "press frmgrafcassa.pctgraf x 1\n").find("x is no number"), 9U);
  EXPECT_NE(ErrorOf(kDesign + "press txtfb 1 1\n").find("txtfb is no plot"), std::string::npos);
}

TEST_F(ScriptRun, ClosesWindows) {
  EXPECT_EQ(Run(kDesign + "windows\nclose frmgrafcassa\nwindows\nclose frmgrafcassa\n"),
            (Lines{kProposal, "windows frmgrafcassa frmthsm mdithsm", "windows frmthsm mdithsm",
                   "refused frmgrafcassa: not open"}));
  EXPECT_EQ(ErrorOf("start\nclose txtfs\n"), "line 2: there is no window txtfs");
}

TEST_F(ScriptRun, TellsHiddenWindows) {
  EXPECT_EQ(Run(kDesign + "tab par\nwindows\ntab ref\nwindows\n"),
            (Lines{kProposal, "windows frmthsm frmgrafcassa(hidden) mdithsm", "windows frmgrafcassa frmthsm mdithsm"}));
}

TEST_F(ScriptRun, BringsAWindowToTheFrontFirst) {
  EXPECT_EQ(Run(kDesign + "windows\nfocus txtl\nwindows\n"),
            (Lines{kProposal, "windows frmgrafcassa frmthsm mdithsm", "windows frmthsm frmgrafcassa mdithsm"}));
}

// ---- answering ----

TEST_F(ScriptRun, NeedsAnAnswerForAQuestion) {
  std::string script = kDesign;
  script.replace(script.find("answer yes\n"), 11, "");
  const std::string error = ErrorOf(script);
  EXPECT_EQ(error.substr(0, error.find(':')), "line 26");
  EXPECT_NE(error.find("no answer is queued"), std::string::npos);
}

TEST_F(ScriptRun, NeedsAFileForADialog) {
  EXPECT_EQ(ErrorOf(kNew + "choose mnusalva\n"),
            "line 3: no file is queued for the dialog \"Zefirondo Project (*.pro)|*.pro\"");
}

TEST_F(ScriptRun, TakesAnswersInTheirOrder) {
  const std::string question =
      R"(message question "Exit" "The project has been modified\n\nDo you want to save the project?" )"
      R"([Yes No Cancel] -> )";
  EXPECT_EQ(Run(kDesign + "answer cancel\nanswer no\nchoose mnuesci\nwindows\nchoose mnuesci\nwindows\n"),
            (Lines{kProposal, question + "Cancel", "windows frmthsm frmgrafcassa mdithsm", question + "No",
                   "windows mdithsm"}));
}

TEST_F(ScriptRun, NeedsNoAnswerForABoxWithOkAlone) {
  EXPECT_EQ(Run("answer ok\nstart missing.pro\n").size(), 1U);
  EXPECT_EQ(Run("start missing.pro\n").size(), 1U);
  // An answer that the box does not offer waits for the next box.
  EXPECT_EQ(ErrorOf("answer yes\nstart missing.pro\n"), "line 2: nothing took the queued answer Yes");
}

TEST_F(ScriptRun, KnowsItsAnswers) {
  EXPECT_EQ(ErrorOf("answer maybe\n"), "line 1: there is no answer maybe");
  EXPECT_EQ(ErrorOf("overwrite maybe\n"), "line 1: overwrite takes yes or no");
}

TEST_F(ScriptRun, AddsTheExtensionOfTheDialog) {
  const std::string path = (folder.path() / "project").string();
  Run(kNew + "file \"" + path + "\"\nchoose mnusalva\n");
  EXPECT_TRUE(std::filesystem::exists(path + ".pro"));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ScriptRun, AsksBeforeOverwriting) {
  const std::string first = (folder.path() / "first.pro").string();
  const std::string second = (folder.path() / "second.pro").string();
  const std::string save = "file \"" + first + "\"\nchoose mnusalva\n";
  Run(kNew + "set txtmarca one\n" + save);
  const auto brand = [](const std::string& path) { return ReadFileBytes(path).find("Brand=one") != std::string::npos; };
  // Given up: the file stays.
  EXPECT_TRUE(Run(kNew + "set txtmarca two\noverwrite no\n" + save).back().ends_with(" -> cancel"));
  EXPECT_TRUE(brand(first));
  // Another file instead.
  EXPECT_TRUE(
      Run(kNew + "set txtmarca two\noverwrite no\nfile \"" + first + "\"\nfile \"" + second + "\"\nchoose mnusalva\n")
          .back()
          .ends_with(" -> " + second));
  EXPECT_TRUE(brand(first));
  EXPECT_TRUE(std::filesystem::exists(second));
  // Yes, and without any answer: overwritten.
  Run(kNew + "set txtmarca two\noverwrite yes\n" + save);
  EXPECT_FALSE(brand(first));
  Run(kNew + "set txtmarca one\n" + save);
  EXPECT_TRUE(brand(first));
}

TEST_F(ScriptRun, LeavesNoAnswerOver) {
  EXPECT_EQ(ErrorOf("start\nfile x.pro\necho\n"), "line 3: nothing took the queued file x.pro");
}

// ---- asking ----

TEST_F(ScriptRun, GetsTextsCaptionsFlagsAndNumbers) {
  EXPECT_EQ(
      Run(kNew + "set txtmarca Brezza\nget txtmarca frmthsm.txtmarca cmbql mdithsm.mnuinsmanuale mnusalva cmdreset\n"
                 "get frmgrafcassa.chkonoff1 ImpedanceMode HasProjectPath WoodThickness RsAmplifier WooferWiring "
                 "LastSaveError frmgrafcassa frmgrafcassa.CalibrationDb\n"),
      (Lines{"txtmarca = \"Brezza\"", "frmthsm.txtmarca = \"Brezza\"", "cmbql = \"7\"",
             "mdithsm.mnuinsmanuale = \"New Project with Entered &Parameters\"", "mnusalva = \"Save &Project as\"",
             "cmdreset = \"&Reset\"", "frmgrafcassa.chkonoff1 = 0", "ImpedanceMode = 0", "HasProjectPath = 0",
             "WoodThickness = 18", "RsAmplifier = 0.10000000000000001", "WooferWiring = \"biamp\"", "LastSaveError = 0",
             "frmgrafcassa = \"Transfer Function\"", "frmgrafcassa.CalibrationDb = 0"}));
  EXPECT_EQ(Run("start\nchoose mdithsm.mnuthisma\nget ImpedanceMode\n"), Lines{"ImpedanceMode = -1"});
}

TEST_F(ScriptRun, GetsNothingThatDoesNotExist) {
  EXPECT_EQ(ErrorOf("get nothing\n"), "line 1: there is no nothing");
  EXPECT_EQ(ErrorOf("get frmthsm.nothing\n"), "line 1: there is no frmthsm.nothing");
  EXPECT_EQ(ErrorOf("get nowhere.txtfs\n"), "line 1: there is no nowhere.txtfs");
  EXPECT_EQ(ErrorOf("get imgforma(7)\n"), "line 1: there is no imgforma(7)");
  EXPECT_EQ(ErrorOf("get BoxDb\n"), "line 1: BoxDb is a curve");
  const ScriptResult result = Try("get txtfs nothing\n");
  EXPECT_EQ(result.out, "txtfs = \"\"\n");
}

TEST_F(ScriptRun, LooksAtControlsAndEntries) {
  EXPECT_EQ(
      Run(kNew + "look txtzmax txtqes cmdcalcola mnusalvadir mnusalva txtvolnetto\n"),
      (Lines{"txtzmax enabled=1 visible=1 locked=1 back=14737632 fore=text",
             "txtqes enabled=1 visible=1 locked=0 back=window fore=text",
             "cmdcalcola enabled=0 visible=1 locked=0 back=face fore=text", "mnusalvadir enabled=0 checked=0",
             "mnusalva enabled=1 checked=0", "txtvolnetto enabled=1 visible=1 locked=0 back=12648447 fore=text"}));
}

TEST_F(ScriptRun, ListsTheItemsOfACombo) {
  EXPECT_EQ(Run("list cmbql\nlist cmbforma\nlist cmbDoa\n"),
            (Lines{R"(cmbql: "5" "7" "10" "15" "20")", R"(cmbforma: "Prismatic" "Trapezoidal")",
                   R"(cmbDoa: "3.5" "4.5" "5.7" "6.6" "7.5" "9.5" "10.4" "12.1" "13.4" "15.56" "19.2")"}));
  EXPECT_EQ(ErrorOf("list txtfs\n"), "line 1: txtfs has no list");
}

TEST_F(ScriptRun, TellsCaptionsAndTips) {
  EXPECT_EQ(Run(kDesign + "caption TabStrip1(ref) TabStrip1(gen) cmdreset txtvolnetto\n"),
            (Lines{kProposal, R"(TabStrip1(ref) caption="Vented Box" tip="")",
                   R"(TabStrip1(gen) caption="General" tip="")", R"(cmdreset caption="&Reset" tip="")",
                   R"(txtvolnetto caption="Net Vol. Box" tip="Funzione associata al tasto destro del mouse")"}));
  EXPECT_EQ(ErrorOf(kNew + "caption TabStrip1(ref)\n"), "line 3: there is no TabStrip1(ref)");
}

TEST_F(ScriptRun, TellsPlaces) {
  EXPECT_EQ(Run(kDesign + "place frmgrafcassa frmthsm\n"),
            (Lines{kProposal, "frmgrafcassa left=5000 top=2900", "frmthsm left=0 top=0"}));
}

TEST_F(ScriptRun, PrintsCurves) {
  EXPECT_EQ(Run("start\ncurve BoxDb\ncurve frmgrafcassa.OverlayDb 3 5\n"),
            (Lines{"BoxDb upper=-1", "frmgrafcassa.OverlayDb upper=-1"}));
  const Lines lines = Run(kDesign + "curve BoxFreq 6826 9999\n");
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[1], "BoxFreq upper=6827");
  EXPECT_EQ(lines[2], "BoxFreq(6826) = " + NumberText(Sweep5k().x[6826]));
  EXPECT_EQ(lines[3], "BoxFreq(6827) = 0");
  EXPECT_EQ(Run(kDesign + "curve BoxFreq\n").size(), 2U + 6828U);
  EXPECT_EQ(Run(kNew + "curve Set1BoxDb\n"), (Lines{"Set1BoxDb upper=0", "Set1BoxDb(0) = 0"}));
}

TEST_F(ScriptRun, NeedsIndexesForACurve) {
  EXPECT_NE(ErrorOf(kDesign + "curve BoxDb 1.5 3\n").find("1.5 is no index"), std::string::npos);
  EXPECT_NE(ErrorOf(kDesign + "curve BoxDb -1 3\n").find("-1 is no index"), std::string::npos);
  EXPECT_NE(ErrorOf(kDesign + "curve BoxDb a 3\n").find("a is no number"), std::string::npos);
  EXPECT_NE(ErrorOf(kDesign + "curve Fb\n").find("Fb is no curve"), std::string::npos);
}

TEST_F(ScriptRun, ShowsWhatStandsOnAPlot) {
  const Lines lines = Run(kDesign + "press frmgrafcassa.pctgraf 40 25\nsurface frmgrafcassa.pctgraf\n");
  // The head, 31 lines of the grid, 6825 of the curve, 6 labels, the read-out.
  ASSERT_EQ(lines.size(), 1U + 1U + 31U + 6825U + 6U + 1U);
  EXPECT_EQ(lines[1], "surface frmgrafcassa.pctgraf left=20 width=" + NumberText(53.96) + " height=65");
  EXPECT_EQ(lines[2], "line 0 55 " + NumberText(53.96 + 20) + " 55 0");
  EXPECT_EQ(lines[8], "line 20 0 20 65 0");  // 10 Hz
  EXPECT_TRUE(lines[33].starts_with("line " + NumberText(Sweep5k().x[0]) + " ")) << lines[33];
  EXPECT_EQ(lines[33 + 6825], "label \"-30\" 55");
  EXPECT_EQ(lines[33 + 6825 + 5], "label \" 20\" 5");
  EXPECT_EQ(lines.back(), "readout \"100.00 Hz ; 0.00 dB\"");
}

TEST_F(ScriptRun, TellsWhatWasStored) {
  const Lines lines = Run("start\nstore\n");
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0], R"(Zefirondo = "Zefirondo")");
  EXPECT_EQ(lines[1], R"(.pro = "Zefirondo")");
  EXPECT_TRUE(lines[2].starts_with(R"(Zefirondo\shell\open\command = ")")) << lines[2];
  EXPECT_TRUE(lines[2].ends_with(R"( %1")")) << lines[2];
}

TEST_F(ScriptRun, EchoesAText) {
  EXPECT_EQ(Run("echo one two\necho \"three  four\"\necho\n"), (Lines{"echo one two", "echo three  four", "echo"}));
}

TEST_F(ScriptRun, TellsTheHelp) {
  EXPECT_EQ(Run("start\nchoose mdithsm.mnuguida\n"), Lines{"help \"" + (folder.path() / "guida.hlp").string() + "\""});
}

// ---- lines that cannot be run ----

TEST_F(ScriptRun, StopsAtABadLine) {
  struct Row {
    const char* line;
    const char* why;
  };
  for (const Row& row : {Row{"fly", "unknown command fly"},
                         {"Start", "unknown command Start"},
                         {"get", "get has the wrong number of words"},
                         {"set txtfs", "set has the wrong number of words"},
                         {"set txtfs 3 4", "set has the wrong number of words"},
                         {"leave now", "leave has the wrong number of words"},
                         {"tabs x", "tabs has the wrong number of words"},
                         {"choose txtfs", "txtfs is no menu entry"},
                         {"choose mnufile", "mnufile is no menu entry"},
                         {"click mnusalva", "mnusalva is a menu entry, which is chosen"},
                         {"set cmdreset x", "cmdreset is no field"},
                         {"echo \"open", "a quote is not closed"},
                         {"clipboard missing.txt", "the file missing.txt cannot be read"},
                         {"clipboard /", "the file / cannot be read"},
                         {"surface txtfs", "txtfs is no plot"},
                         {"place Qts", "Qts has no place"},
                         {"caption Qts", "Qts has no caption"},
                         {"look Qts", "Qts is no control"}}) {
    EXPECT_EQ(ErrorOf(std::string("# remark\n\n") + row.line + "\necho behind\n"), std::string("line 3: ") + row.why);
  }
}

TEST_F(ScriptRun, TakesLineEndsOfEverySystemAndNoneAtTheEnd) {
  EXPECT_EQ(Run("echo a\r\necho b\necho c"), (Lines{"echo a", "echo b", "echo c"}));
}

TEST_F(ScriptRun, TakesTheClipboard) {
  const std::string file = folder.Write("clip.txt", "text").string();
  EXPECT_EQ(Run("clipboard \"" + file + "\"\nclipboard \"\"\necho x\n"), Lines{"echo x"});
}

}  // namespace
}  // namespace zefirondo
