// The commands of a script that answer and ask, to the letter.
#include <algorithm>

#include "runner/contract.h"

namespace zefirondo {
namespace {

// ---- answering ----

TEST_F(Contract, RefusesToQueueOnceTheProgramHasEnded) {
  EXPECT_EQ(Run("start\nclose mdithsm\nanswer yes\nfile x\ninput x\noverwrite no\nprinter 1\nclipboard \"\"\nstart\n"
                "press frmgrafcassa.pctgraf 1 1\n"),
            Lines(9, "ended"));
}

TEST_F(Contract, ReportsAnAnswerLeftByAProgramThatEnded) {
  const ScriptResult result = Try("start\nanswer yes\nclose mdithsm\n");
  EXPECT_EQ(result.out, "ended\n");
  EXPECT_EQ(result.error, "line 3: nothing took the queued answer Yes");
}

TEST_F(Contract, ReportsAPrinterThatNothingTook) {
  for (const char* const printer : {"printer 2", "printer 2 landscape", "printer cancel", "printer fail"}) {
    EXPECT_EQ(Try(std::string("start\n") + printer + "\n").error, "line 2: nothing took the queued printer") << printer;
  }
}

TEST_F(Contract, KnowsItsPrinters) {
  for (const char* const printer : {"printer 0", "printer 1.5", "printer x", "printer 1 sideways", "printer cancel now",
                                    "printer", "printer 1 portrait now"}) {
    EXPECT_TRUE(Try(std::string("start\n") + printer + "\n").error.starts_with("line 2: ")) << printer;
  }
}

TEST_F(Contract, TellsThePrinterAndItsPages) {
  const Lines lines = RunDesigned("input \"A box\"\nprinter 2\nchoose mnustampa\npages\n");
  ASSERT_FALSE(lines.empty());
  ASSERT_GT(lines.size(), 4U);
  EXPECT_EQ(lines[0], "input \"Project Name\" \"Enter a project name\" -> \"A box\"");
  EXPECT_EQ(lines[1], "printer -> 2 portrait");
  EXPECT_EQ(lines[2], "page 1 portrait");
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "end"), 1);
  EXPECT_EQ(lines.back(), "end");
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "page 2 portrait"), 1);
  EXPECT_EQ(RunDesigned("input A\nprinter cancel\nchoose mnustampa\npages\n").back(), "printer -> cancel");
  const Lines failed = RunDesigned("input A\nprinter fail\nchoose mnustampa\npages\n");
  ASSERT_EQ(failed.size(), 3U);
  EXPECT_EQ(failed[1], "printer -> 1 portrait");
  EXPECT_TRUE(failed[2].starts_with("message stop \"Error\" \"An error occurred while printing. ")) << failed[2];
}

TEST_F(Contract, NeedsAnInputAndAPrinterForTheirDialogs) {
  const auto why = [&](const std::string& script) {
    const std::string error = Try(kDesign + script).error;
    return error.substr(error.find(": ") + 2);
  };
  EXPECT_EQ(why("choose mnustampa\n"), "no input is queued for the input box \"Enter a project name\"");
  EXPECT_EQ(why("input A\nchoose mnustampa\n"), "no printer is queued for the printer dialog");
}

// ---- asking ----

TEST_F(Contract, TellsEveryTextOfTheMessageInOneLine) {
  EXPECT_EQ(RunDesigned("answer cancel\nclose frmthsm\n"),
            Lines{R"(message question "Exit" "The project has been modified\n\nDo you want to save the project?" )"
                  R"([Yes No Cancel] -> Cancel)"});
  EXPECT_EQ(
      RunDesigned("close mdithsm\n"),
      Lines{R"(message information "Active Project" "This Project has not yet been closed.\n\nClose the Project" )"
            R"([OK] -> OK)"});
}

TEST_F(Contract, TellsTheRealFolderOfADialog) {
  const ScriptResult result = Try(kNew + "file cancel\nchoose mnusalva\n", Language::Italian);
  EXPECT_EQ(result.out, "dialog save \"Progetto di Zefirondo (*.pro)|*.pro\" default=\".pro\" folder=\"" +
                            (folder.path() / "Progetti").string() + "\" -> cancel\n");
}

TEST_F(Contract, GetsNumbersIntegersFlagsAndTextsOfTheRecord) {
  EXPECT_EQ(Run(kNew + "get roo Velocity SectArea1Vent Kinternal DriversNum BoxScaleTop ProjectLoaded BoxSection "
                       "ProjectTitle ImpFileTitle\n"),
            (Lines{"roo = 1.1854132477839954", "Velocity = 346.0310925914028", "SectArea1Vent = 0.0035256520000000002",
                   "Kinternal = 1.400823478", "DriversNum = 1", "BoxScaleTop = 0", "ProjectLoaded = 0",
                   "BoxSection = \"\"", "ProjectTitle = \"\"", "ImpFileTitle = \"\""}));
}

TEST_F(Contract, GetsEveryNumberFlagAndTextOfTheRecordByItsName) {
  for (const char* const name : {"Temperature",
                                 "Pressure",
                                 "roo",
                                 "Velocity",
                                 "Kinternal",
                                 "Fs",
                                 "Zmax",
                                 "Bw",
                                 "Qts",
                                 "Vas",
                                 "EBP",
                                 "Rzero",
                                 "DriversNum",
                                 "VentNum",
                                 "SectArea1Vent",
                                 "Ql",
                                 "Qtc",
                                 "Fc",
                                 "F3c",
                                 "Fb",
                                 "F3v",
                                 "Vb",
                                 "Vc",
                                 "VbaClosed",
                                 "VbaVented",
                                 "Vba",
                                 "WidthPrism",
                                 "HeightPrism",
                                 "DepthPrism",
                                 "DepthPrismTrapez",
                                 "WidthRearPrism",
                                 "WooferWiring",
                                 "RsAmplifier",
                                 "WoodThickness",
                                 "SPLmax",
                                 "USPL",
                                 "BoxScaleTop",
                                 "SplScaleTop",
                                 "ImpScaleTop",
                                 "Set1BoxStored",
                                 "Set2BoxStored",
                                 "Set1SplStored",
                                 "Set2SplStored",
                                 "Set1PhaseStored",
                                 "Set2PhaseStored",
                                 "Set1BoxShown",
                                 "Set2BoxShown",
                                 "Set1SplShown",
                                 "Set2SplShown",
                                 "Set1PhaseShown",
                                 "Set2PhaseShown",
                                 "ProjectModified",
                                 "ProjectLoaded",
                                 "HasProjectPath",
                                 "ProjectSaved",
                                 "ImpedanceMode",
                                 "DataImported",
                                 "FilterComputed",
                                 "AirChanged",
                                 "DesignChanged",
                                 "DimEditing",
                                 "SquarePortSection",
                                 "BoxSection",
                                 "FieldBefore",
                                 "FilePath",
                                 "ProjectPath",
                                 "ProjectTitle",
                                 "ImpFileTitle",
                                 "LastSaveError",
                                 "GrafCassaOpen",
                                 "GrafFaseOpen",
                                 "GrafSplOpen",
                                 "GrafSplMaxOpen",
                                 "GrafEscursioneOpen",
                                 "GrafAirspeedOpen"}) {
    const ScriptResult result = Try(std::string("get ") + name + "\n");
    EXPECT_EQ(result.error, "") << name;
    EXPECT_TRUE(result.out.starts_with(std::string(name) + " = ")) << result.out;
  }
}

TEST_F(Contract, PrintsEveryCurveOfTheRecordByItsName) {
  for (const char* const name : {"ImpFreq",
                                 "ImpZ",
                                 "BoxFreq",
                                 "BoxDb",
                                 "SplFreq",
                                 "SplDb",
                                 "SplMaxFreq",
                                 "SplMaxDb",
                                 "AirFreq",
                                 "AirSpeed",
                                 "OverlaySplFreq",
                                 "OverlaySplDb",
                                 "PhaseFreq",
                                 "PhaseDeg",
                                 "FilterFreq",
                                 "FilterDb",
                                 "FilterPhaseFreq",
                                 "FilterPhaseDeg",
                                 "SumFreq",
                                 "SumDb",
                                 "SumPhaseDeg",
                                 "Set1BoxFreq",
                                 "Set1BoxDb",
                                 "Set2BoxFreq",
                                 "Set2BoxDb",
                                 "Set1SplFreq",
                                 "Set1SplDb",
                                 "Set2SplFreq",
                                 "Set2SplDb",
                                 "Set1PhaseFreq",
                                 "Set1PhaseDeg",
                                 "Set2PhaseFreq",
                                 "Set2PhaseDeg",
                                 "PhaseX1",
                                 "PhaseHz1",
                                 "PhaseDeg1",
                                 "PhaseX2",
                                 "PhaseHz2",
                                 "PhaseDeg2",
                                 "frmgrafcassa.OverlayFreq",
                                 "frmgrafcassa.OverlayDb"}) {
    EXPECT_EQ(Try(std::string("curve ") + name + "\n").out, std::string(name) + " upper=-1\n");
  }
}

TEST_F(Contract, PrintsOneIndexOfACurveOrARange) {
  EXPECT_EQ(RunDesigned("curve BoxFreq 6827\n"), (Lines{"BoxFreq upper=6827", "BoxFreq(6827) = 0"}));
  EXPECT_EQ(RunDesigned("curve BoxDb 9000 9999\n"), Lines{"BoxDb upper=6827"});
  EXPECT_EQ(RunDesigned("curve BoxDb 5 3\n"), Lines{"BoxDb upper=6827"});
}

TEST_F(Contract, LooksAtColoursOfEveryKind) {
  // 255, 255, 192 and 224, 224, 224 with red in the low byte; the system's colours by name.
  EXPECT_EQ(
      RunDesigned("look txtl txtfb txtmarca cmdreset frmgrafcassa.mnuspl\n"),
      (Lines{"txtl enabled=1 visible=1 locked=0 back=" + std::to_string(255 + 255 * 256 + 192 * 65536) + " fore=text",
             "txtfb enabled=1 visible=1 locked=1 back=" + std::to_string(224 + 224 * 256 + 224 * 65536) + " fore=text",
             "txtmarca enabled=1 visible=1 locked=0 back=window fore=text",
             "cmdreset enabled=1 visible=1 locked=0 back=face fore=text", "frmgrafcassa.mnuspl enabled=1 checked=0"}));
}

TEST_F(Contract, TellsCaptionsOfWindowsAndBoxes) {
  EXPECT_EQ(Run("start\ncaption frmthsm mdithsm frmopzioni.optbiamp mdithsm.mnuuscita txtfs\n"),
            (Lines{R"(frmthsm caption="Loudspeaker  design project" tip="")", R"(mdithsm caption="Zefirondo" tip="")",
                   R"(frmopzioni.optbiamp caption="One woofer for each channel of the amplifier" tip="")",
                   R"(mdithsm.mnuuscita caption="&Exit" tip="")", R"(txtfs caption="Fs" tip="")"}));
}

TEST_F(Contract, TellsTheFocusOfOtherWindowsInFull) {
  EXPECT_EQ(Run("start\nchoose mdithsm.mnuopzioni\nfocus frmopzioni.txtspessore\nfocused\n"),
            Lines{"focused frmopzioni.txtspessore"});
}

TEST_F(Contract, PlacesADialogInTheMiddleOfAFrameAsWideAsTheScreen) {
  const auto left = [&](double pixels) {
    ScriptOptions options;
    options.folder = folder.path();
    options.screen_width = pixels;
    const std::string out = RunScript("start\nchoose mdithsm.mnuopzioni\nplace frmopzioni\n", options).out;
    const std::string words = "frmopzioni left=";
    EXPECT_TRUE(out.starts_with(words)) << out;
    return std::stod(out.substr(words.size()));
  };
  EXPECT_EQ(left(1920) - left(1024), (1920 - 1024) * 15 / 2.0);
}

TEST_F(Contract, AsksBeforeTheStartToo) {
  EXPECT_EQ(Run("windows\ntabs\nfocused\nstore\npages\nget txtmarca\nlook cmdcalcola\n"),
            (Lines{"windows", "tabs selected=", "focused none", "txtmarca = \"\"",
                   "cmdcalcola enabled=0 visible=1 locked=0 back=face fore=text"}));
}

TEST_F(Contract, BringsAWindowToTheFrontForAMenuEntryAndAPlot) {
  EXPECT_EQ(RunDesigned("choose mnuguida\nwindows\npress frmgrafcassa.pctgraf 30 10\nwindows\n").back(),
            "windows frmgrafcassa frmthsm mdithsm");
  EXPECT_EQ(RunDesigned("choose mnuguida\nwindows\n").back(), "windows frmthsm frmgrafcassa mdithsm");
}

TEST_F(Contract, SaysThatTheProgramEndedByAFailureOnce) {
  // A temperature of absolute zero has no air: the division ends the program.
  EXPECT_EQ(
      Run(kNew + "tab imp\nset txttemperatura -273.15\nget Temperature\nset txttemperatura 1e40\necho on\n").back(),
      "echo on");
  const Lines lines =
      Run("start\nchoose mdithsm.mnuopzioni\nset frmopzioni.txtspessore 40000\n"
          "click frmopzioni.cmdok\nset frmopzioni.txtrs 3\nget WoodThickness\n");
  EXPECT_EQ(lines,
            (Lines{R"(message stop "Error" "Overflow" [OK] -> OK)", "ended error", "ended", "WoodThickness = 18"}));
}

}  // namespace
}  // namespace zefirondo
