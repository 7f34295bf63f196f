// The entries of the two imports from the start of a project on, their words in both languages, and odd curves.
#include <gtest/gtest.h>

#include "support/desk.h"

namespace zefirondo {
namespace {

/// A heading that makes the file long enough to be taken, and the rows.
std::string Long(const std::string& rows) { return std::string(170000 - rows.size(), ';') + "\r\n" + rows; }

// The level is √(45 · 5) = 15: Fh = 55 between 50 and 60 Hz, Fl = 30 around 40²/55 = 29.1 Hz, Qms = 3 · 40 / 25.
constexpr const char* kRows = "20 6\r\n40 45\r\n50 20\r\n60 6\r\n1 1\r\n";

/// 55 lines of data with nothing on them but the values of a few.
std::string Data() {
  std::string text;
  for (int line = 1; line <= 55; ++line) {
    text += line == 3 ? "......Levante" : line == 14 ? "...5.0" : line == 32 ? "......1" : "";
    text += "\r\n";
  }
  return text;
}

class ImportEntries : public testing::Test {
 protected:
  void ImportData() {
    desk.platform.files.emplace_back(desk.folder.Write("d.wdr", Data()));
    desk.Choose("mnuimportadati");
  }
  void ImportImpedance(const std::string& rows = kRows) {
    desk.platform.files.emplace_back(desk.folder.Write("m.ovl", Long(rows)));
    desk.Choose("mnuimporta");
  }
  /// The entries in the order of an import, and the two that undo it.
  void Expect(bool data, bool impedance, bool graph, bool undo_data, bool undo_impedance) {
    EXPECT_EQ(desk["mnuimportadati"].enabled, data) << "mnuimportadati";
    EXPECT_EQ(desk["mnuimporta"].enabled, impedance) << "mnuimporta";
    EXPECT_EQ(desk["mnugrafico"].enabled, graph) << "mnugrafico";
    EXPECT_EQ(desk["mnuannulla"].enabled, undo_data) << "mnuannulla";
    EXPECT_EQ(desk["mnuannullasequenza"].enabled, undo_impedance) << "mnuannullasequenza";
  }
  Desk desk;
};

TEST_F(ImportEntries, OpenOneAfterTheOther) {
  desk.BeginImpedance();
  Expect(true, false, false, false, false);
  EXPECT_TRUE(desk.state.ImpedanceMode);
  ImportData();
  Expect(false, true, false, true, false);
  ImportImpedance();
  Expect(false, false, true, true, true);
  EXPECT_EQ(desk.Text("txtqmesin"), "4.8");
}

TEST_F(ImportEntries, OpenAgainByAReset) {
  desk.BeginImpedance();
  desk.Tab("par");
  desk.Click("cmdreset");
  EXPECT_TRUE(desk["mnuimporta"].enabled);
}

TEST_F(ImportEntries, OfEnteredParametersAreClosed) {
  desk.BeginParameters();
  Expect(false, false, false, false, false);
  EXPECT_FALSE(desk.state.ImpedanceMode);
}

TEST_F(ImportEntries, AreGivenBackByTheUndoEntries) {
  desk.BeginImpedance();
  ImportData();
  ImportImpedance();
  desk.Choose("mnuannullasequenza");
  EXPECT_TRUE(desk["mnuimporta"].enabled);
  EXPECT_FALSE(desk["mnugrafico"].enabled);
  EXPECT_FALSE(desk["mnuannullasequenza"].enabled);
  EXPECT_EQ(desk.Text("txtrvc"), "5.0");  // of the data, which stay
  desk.Choose("mnuannulla");
  EXPECT_TRUE(desk["mnuimportadati"].enabled);
  EXPECT_EQ(desk.Text("txtrvc"), "");
}

TEST_F(ImportEntries, UndoOfTheDataTakesTheBoxAway) {
  desk.DesignVented();
  desk.sheet.mnuannulla.enabled = true;
  ASSERT_EQ(desk.sheet.tabs.size(), 5U);
  desk.Choose("mnuannulla");
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_EQ(desk.sheet.tabs[3].key, "imp");
  EXPECT_EQ(desk.sheet.selected_tab, "gen");
  EXPECT_FALSE(desk.program.FindWindow("frmgrafcassa")->open);
}

TEST_F(ImportEntries, OfTheParameterPageLeaveTheFocusWhenCancelled) {
  desk.BeginImpedance();
  ImportData();
  desk.Tab("par");
  desk.Set("txtzmax", "50");  // its test on leaving asks for it
  desk.Focus("txtbl");
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mnuimporta");
  EXPECT_EQ(desk.program.focus, &desk["txtbl"]);  // the page was there, and was not selected anew
  EXPECT_EQ(desk.sheet.selected_tab, "par");
}

TEST_F(ImportEntries, SelectTheParameterPageBeforeTheDialog) {
  desk.BeginImpedance();
  ImportData();
  desk.platform.files.emplace_back(std::nullopt);
  desk.Choose("mnuimporta");
  EXPECT_EQ(desk.sheet.selected_tab, "par");
}

TEST_F(ImportEntries, ModelOfTheDataIsInTheCaptions) {
  desk.BeginImpedance();
  ImportData();
  for (const char* const frame : {"fragenerale", "frathsm", "fradim", "frabox"}) {
    EXPECT_EQ(desk.Text(frame), "Transducer: -Levante-");
  }
}

TEST_F(ImportEntries, DataAreFollowedByTheReminderOfTheImpedance) {
  desk.BeginImpedance();
  ImportData();
  desk.TakeOut();
  ImportImpedance();
  EXPECT_EQ(desk.TakeOut().substr(0, 25), "message warning \"Warning!");
  EXPECT_EQ(desk.Text("txtfs"), "40");  // it only reminds
}

// After the measurement was undone the mode is that of entered parameters, and the data bring the reminder.
TEST_F(ImportEntries, DataBehindAnUndoneImpedanceAreRemindedOf) {
  desk.BeginImpedance();
  ImportData();
  ImportImpedance();
  desk.Choose("mnuannullasequenza");
  desk.Choose("mnuannulla");
  desk.TakeOut();
  ImportData();
  EXPECT_EQ(desk.TakeOut().substr(0, 25), "message warning \"Warning!");
  EXPECT_TRUE(desk.state.DataImported);
}

TEST(ImportWords, AreItalianToo) {
  Desk desk(Language::Italian);
  desk.BeginImpedance();
  desk.state.ImpedanceMode = false;
  const std::filesystem::path data = desk.folder.Write("d.wdr", Data());
  desk.platform.files.emplace_back(data);
  desk.TakeOut();
  desk.Choose("mnuimportadati");
  EXPECT_EQ(desk.TakeOut(),
            "message warning \"Attenzione!\" \"Si devono importare i dati del trasduttore di cui si è già "
            "precedentemente importata la sequenza\" [OK] -> OK\n"
            "dialog open \"File Dati (*.wdr)|*.wdr|\" default=\".wdr\" folder=\"" +
                desk.folder.path().string() + "\" -> " + data.string() + "\n");
  EXPECT_EQ(desk.Text("fragenerale"), "Trasduttore: -Levante-");
  const std::filesystem::path none = desk.folder.path() / "none.ovl";
  desk.platform.files.emplace_back(none);
  desk.Choose("mnuimporta");
  EXPECT_EQ(desk.TakeOut(),
            "message warning \"Attenzione!\" \"Si deve importare l'impedenza del trasduttore di cui si sono già "
            "importati i dati\" [OK] -> OK\n"
            "dialog open \"Misura Impedenza (*.ovl)|*.ovl|File di testo (*.txt)|*.txt\" default=\".ovl\" folder=\"" +
                data.string() + "\" -> " + none.string() +
                "\nmessage stop \"Errore\" \"Il file non può essere aperto. File not found\" [OK] -> OK\n");
  EXPECT_EQ(desk.state.FilePath, none.string());  // taken from the dialog before the file is opened
  EXPECT_EQ(desk.state.ImpFileTitle, "none.ovl");
}

class OddCurve : public ImportEntries {
 protected:
  OddCurve() {
    desk.BeginImpedance();
    desk.sheet.mnuimporta.enabled = true;
    desk.state.txtrvc = "5";
  }
};

// Without a row between 10 and 300 Hz the peak is 0 ohm at 0 Hz: the level is 0, which the last row and the zero
// slot behind it cross at (400 + 0) / 2, and everything else is 0.
TEST_F(OddCurve, WithoutAPeakGivesZeros) {
  ImportImpedance("10 50\r\n300 60\r\n400 7\r\n1 1\r\n");
  EXPECT_EQ(desk.Text("txtfs"), "0");
  EXPECT_EQ(desk.Text("txtzmax"), "0");
  EXPECT_EQ(desk.Text("txtzmin"), "7");
  EXPECT_EQ(desk.Text("txtfh"), "200");
  EXPECT_EQ(desk.Text("txtfl"), "0");
  EXPECT_EQ(desk.Text("txtbw"), "200");
  EXPECT_EQ(desk.Text("txtqmesin"), "0");
  EXPECT_EQ(desk.state.ImpScaleTop, 10);
}

TEST_F(OddCurve, PeaksJustInsideTheInterval) {
  ImportImpedance("10 90\r\n10.01 45\r\n12 20\r\n20 6\r\n300 80\r\n1 1\r\n");
  EXPECT_EQ(desk.Text("txtfs"), "10.01");
  desk.sheet.mnuimporta.enabled = true;
  ImportImpedance("20 6\r\n299.99 45\r\n300 80\r\n310 20\r\n320 6\r\n1 1\r\n");
  EXPECT_EQ(desk.Text("txtfs"), "299.99");
}

// Int(45.9) + 10, and the negative coil has no root.
TEST_F(OddCurve, CutsTheScaleAndFailsAtANegativeCoil) {
  ImportImpedance("20 6\r\n40 45.9\r\n50 20\r\n60 6\r\n1 1\r\n");
  EXPECT_EQ(desk.state.ImpScaleTop, 55);
  desk.sheet.mnuimporta.enabled = true;
  desk.state.txtrvc = "-5";
  desk.TakeOut();
  ImportImpedance();
  EXPECT_NE(desk.TakeOut().find("could not be opened. Invalid procedure call or argument\""), std::string::npos);
}

TEST_F(OddCurve, ReadsTheCoilUpToWhatIsNoNumber) {
  desk.state.txtrvc = "5,9";  // the comma ends the number
  ImportImpedance();
  EXPECT_EQ(desk.Text("txtqmesin"), "4.8");
}

TEST_F(OddCurve, CountsRowsUpToTwentyKilohertzForTheMinimum) {
  ImportImpedance("20 6\r\n40 45\r\n50 20\r\n60 6\r\n20000 4\r\n20000.1 3\r\n1 1\r\n");
  EXPECT_EQ(desk.Text("txtzmin"), "4");
}

// The pair must begin at or below 20 kHz: here the level is crossed only beyond it.
TEST_F(OddCurve, HasNoUpperFrequencyBeyondTwentyKilohertz) {
  desk.TakeOut();
  ImportImpedance("20 6\r\n40 45\r\n20000 20\r\n20001 18\r\n20002 6\r\n30 18\r\n1 1\r\n");
  EXPECT_NE(desk.TakeOut().find("could not be opened. Division by zero\""), std::string::npos);
  EXPECT_EQ(desk.Text("txtfh"), "");
}

// Around 1600 / 55 = 29.09 Hz the pair must begin above 19.09 and below 39.09 Hz.
TEST_F(OddCurve, LooksForTheLowerFrequencyTenHertzAround) {
  ImportImpedance("19 6\r\n40 45\r\n50 20\r\n60 6\r\n1 1\r\n");
  EXPECT_EQ(desk.Text("txtfl"), "0");
  desk.sheet.mnuimporta.enabled = true;
  ImportImpedance("19.2 6\r\n40 45\r\n50 20\r\n60 6\r\n1 1\r\n");
  EXPECT_EQ(desk.Text("txtfl"), "29.6");
  desk.sheet.mnuimporta.enabled = true;
  ImportImpedance("20 6\r\n39.2 6\r\n40 45\r\n50 20\r\n60 6\r\n1 1\r\n");
  EXPECT_EQ(desk.Text("txtfl"), "0");
}

TEST_F(OddCurve, OfOneRowAloneHasNone) {
  desk.TakeOut();
  ImportImpedance("40 45");
  EXPECT_NE(desk.TakeOut().find("could not be opened. Subscript out of range\""), std::string::npos);
}

}  // namespace
}  // namespace zefirondo
