// Ports: formulas, sizing, the reverse calculation, and the fields that set them off.
#include "box/ports.h"

#include <gtest/gtest.h>

#include "box/designs.h"
#include "core/numbers.h"
#include "core/run_time_error.h"

namespace zefirondo {
namespace {

/// 80 litres tuned to 34 Hz in air of 1.18 kg/m³.
ProjectState Box80() {
  ProjectState state;
  state.VbaVented = 0.08;
  state.Fb = 34;
  state.roo = 1.18;
  state.Velocity = 346;
  return state;
}

// The expected numbers of the formulas come from python.

TEST(PortFormulas, Compliance) { EXPECT_NEAR(BoxCompliance(Box80()), 5.6362462920742849e-07, 1e-21); }

TEST(PortFormulas, ApparentLength) { EXPECT_NEAR(ApparentLength(Box80(), 0.007), 0.23062612356354167, 1e-15); }

TEST(PortFormulas, TwoPortsOfTheSameSectionAreTwiceAsLong) {
  ProjectState state = Box80();
  state.VentNum = 2;
  EXPECT_NEAR(ApparentLength(state, 0.007), 0.46125224712708335, 1e-15);
}

TEST(PortFormulas, EndOfARoundPort) {
  // radius 5 cm · 8 / 3π
  EXPECT_NEAR(EndRound(10), 0.042441318157838803, 1e-16);
}

TEST(PortFormulas, EndOfARectangularPort) {
  // 10 x 5 cm: p = 5 cm, q = 2.5 cm; (q² + p² + pq) / (p + q) · 16 / 9π
  EXPECT_NEAR(EndRect(0.1, 0.05), 0.033009914122763509, 1e-16);
  EXPECT_EQ(EndRect(0.05, 0.1), EndRect(0.1, 0.05));
}

TEST(PortFormulas, TuningByLengthAndNumber) {
  ProjectState state = Box80();
  EXPECT_NEAR(PortTuning(state, 0.2, 0.007), 36.510532647405611, 1e-12);
  state.VentNum = 3;
  EXPECT_NEAR(PortTuning(state, 0.2, 0.007), 63.238097556708745, 1e-12);
}

TEST(PortFormulas, TuningIsTheReverseOfTheLength) {
  for (const int ports : {1, 2, 5}) {
    ProjectState state = Box80();
    state.VentNum = static_cast<std::int16_t>(ports);
    EXPECT_NEAR(PortTuning(state, ApparentLength(state, 0.004), 0.004), 34, 1e-12);
  }
}

struct MinimumRow {
  std::int16_t drivers;
  std::int16_t ports;
  double area;  // m², for Xmax 5 mm, Sd 0.03463 m², 34 Hz, 346 m/s
};

TEST(SmallestSection, FollowsTransducersAndPorts) {
  constexpr MinimumRow kRows[] = {{1, 1, 0.0070258391907767658},
                                  {2, 1, 0.014051678381553532},
                                  {1, 2, 0.0035129195953883829},
                                  {2, 3, 0.0046838927938511769}};
  for (const MinimumRow& row : kRows) {
    ProjectState state = Box80();
    state.DriversNum = row.drivers;
    state.VentNum = row.ports;
    EXPECT_NEAR(SezioneMinima(state, "5", "0.03463"), row.area, 1e-16) << row.drivers << " " << row.ports;
  }
}

TEST(SmallestSection, DoublesWithTwoTransducers) {
  ProjectState state = Box80();
  const double one = SezioneMinima(state, "4", "0.02");
  state.DriversNum = 2;
  EXPECT_NEAR(SezioneMinima(state, "4", "0.02"), 2 * one, 1e-16);
}

TEST(RoundPort, PickedDiameterStaysAsListed) {
  for (const char* const diameter :
       {"3.5", "4.5", "5.7", "6.6", "7.5", "9.5", "10.4", "12.1", "13.4", "15.56", "19.2"}) {
    BoxDesk desk;
    desk.DesignVentedBox();
    desk.Pick("cmbDoa", diameter);
    EXPECT_EQ(desk.Text("cmbDoa"), diameter);
    EXPECT_NEAR(desk.state.SectArea1Vent, kPi * std::pow(std::stod(diameter) / 200, 2), 1e-17);
    desk.Enter("txtvolnetto", "90");
    EXPECT_EQ(desk.Text("cmbDoa"), diameter);
  }
}

TEST(RoundPort, DiameterOutsideTheListIsAcceptedAsTyped) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Enter("cmbDoa", "8.25");
  EXPECT_EQ(desk.Text("cmbDoa"), "8.25");
  EXPECT_EQ(desk.Text("txtareasez"), "53.4561");  // π · 4.125² = 53.45616
}

/// Moves the air's density until a port of this diameter in cm is as long as the wall is thick, to the last bit; not
/// every diameter has such a density.
bool MakeLengthExactly(ProjectState& s, double diameter, double length) {
  s.SectArea1Vent = kPi * (diameter / 200) * (diameter / 200);
  const double end = 2 * EndRound(ReadNumber(FormatNumber(std::sqrt(s.SectArea1Vent / kPi) * 200)));
  s.roo *= ApparentLength(s, s.SectArea1Vent) / (length + end);
  for (int step = 0; step < 20; ++step) s.roo = std::nextafter(s.roo, 0.0);
  for (int step = 0; step < 40; ++step) {
    if (ApparentLength(s, s.SectArea1Vent) - end == length) return true;
    s.roo = std::nextafter(s.roo, 10.0);
  }
  return false;
}

TEST(PortLength, EqualToTheWallIsStillALength) {
  BoxDesk desk;
  desk.DesignVentedBox();
  bool found = false;
  for (int tenths = 30; tenths < 90 && !found; ++tenths) found = MakeLengthExactly(desk.state, tenths / 10.0, 0.018);
  ASSERT_TRUE(found);
  DimensionaCondotto(desk.program);
  EXPECT_EQ(desk.Text("txtlungmis"), "1.8");
  desk.state.roo *= 1 + 1e-12;  // shorter by a hair
  DimensionaCondotto(desk.program);
  EXPECT_EQ(desk.Text("txtlungmis"), "Troppo corto");
}

TEST(PortLength, TooShortIsToldInItalianInBothLanguages) {
  for (const Language language : {Language::English, Language::Italian}) {
    BoxDesk desk(language);
    desk.DesignVentedBox();
    desk.state.Fb = 80;
    DimensionaCondotto(desk.program);
    ExpectTexts(desk, {{"txtlungmis", "Troppo corto"}, {"txtlungappa", "Troppo corto"}, {"txtareasez", "70.4299"}});
    EXPECT_EQ(desk.TakeOut(), "");
  }
}

TEST(PortLength, ThickerWallsNeedALongerPort) {
  BoxDesk desk;
  desk.DesignVentedBox();  // 10.2420 cm
  desk.state.WoodThickness = 102;
  DimensionaCondotto(desk.program);
  EXPECT_EQ(desk.Text("txtlungmis"), "10.2420");
  desk.state.WoodThickness = 103;
  DimensionaCondotto(desk.program);
  EXPECT_EQ(desk.Text("txtlungmis"), "Troppo corto");
}

TEST(PortLength, TooShortReadsAsZeroInTheReverseCalculation) {
  // By the script of the whole designs: two ends of 9.46964 cm alone tune the box to 51.5 Hz.
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.txtlungmis = "Troppo corto";
  LunghezzaDigitata(desk.program);
  ExpectTexts(desk, {{"txtfb", "51.5287"}, {"txtlungappa", "8.03808"}, {"txtminsv", "86.4896"}});
}

TEST(PortSection, TurnsRedBelowTheSmallestOne) {
  BoxDesk desk;
  desk.DesignVentedBox();
  EXPECT_EQ(desk.sheet.txtareasez.fore, colour::kText);  // equal to the smallest
  desk.Pick("cmbDoa", "7.5");
  EXPECT_EQ(desk.sheet.txtareasez.fore, 255);
  EXPECT_EQ(desk.TakeOut(), "");
  desk.Pick("cmbDoa", "12.1");
  EXPECT_EQ(desk.sheet.txtareasez.fore, colour::kText);
}

TEST(PortLength, TuningFromThePortShowsTheApparentLength) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.txtlungmis = "12";
  desk.state.BoxDb[kProbe] = 12;
  desk.state.txtminsv = "marker";
  FbDaCondotto(desk.program);
  ExpectTexts(desk, {{"txtlungappa", "20.0380"}, {"txtfreriso", "33.7973"}, {"txtminsv", "marker"}});
  ExpectNumbers(desk, {{"Fb", 32.636041024246076}, {"F3v", 33.826846866642143}});
  EXPECT_EQ(desk.state.BoxDb[kProbe], 12);  // no sweep
}

TEST(TypedLength, KeepsTheVolumeAndMovesTheTuning) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.ProjectModified = false;
  desk.Enter("txtlungmis", "12");
  ExpectNumbers(desk, {{"Vb", 0.10008679519712955}, {"Fb", 32.636041024246076}, {"F3v", 0}});
  EXPECT_EQ(desk.Text("frmgrafcassa.txtF3dB"), "****");
  EXPECT_TRUE(desk.state.DesignChanged);
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST(TypedLength, DropsTheSumOfTheGraph) {
  BoxDesk desk;
  desk.DesignVentedBox();
  BoxResponse& graph = desk.program.windows.frmgrafcassa;
  graph.cmdcancella.enabled = graph.cmdsomma.enabled = true;
  graph.mnuimportaOverlay.enabled = false;
  desk.state.SumFreq = desk.state.SumDb = {1, 2};
  desk.Enter("txtlungmis", "12");
  EXPECT_FALSE(graph.cmdcancella.enabled || graph.cmdsomma.enabled);
  EXPECT_TRUE(graph.mnuimportaOverlay.enabled);
  EXPECT_TRUE(desk.state.SumFreq.empty() && desk.state.SumDb.empty());
}

TEST(TypedLength, SameTextOnlyClearsTheDesignFlag) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.DesignChanged = true;
  desk.state.ProjectModified = false;
  desk.Enter("txtlungmis", "10.2420");
  EXPECT_FALSE(desk.state.DesignChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_EQ(desk.state.F3v, 33.826846866642143);
}

TEST(TypedLength, WithoutASectionTheTuningStays) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.cmbDoa.clear();
  LunghezzaDigitata(desk.program);
  ExpectNumbers(desk, {{"Fb", 34.169307178554135}, {"F3v", 0}});
  EXPECT_EQ(desk.Text("txtlungappa"), "0");
}

TEST(TypedLength, OfARectangularPortTakesItsSection) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  desk.state.cmbDoa = "10";
  desk.state.txtb = "5";
  LunghezzaDigitata(desk.program);
  EXPECT_NEAR(desk.state.SectArea1Vent, 0.005, 1e-17);
  EXPECT_EQ(desk.Text("txtareasez"), "70.4299");  // not written here
}

constexpr const char* kNonZero = "message stop \"Error\" \"Please enter a non zero value\" [OK] -> OK\n";

TEST(PortFields, ZeroHoldsTheFocus) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  for (const char* const name : {"txtlungmis", "cmbDoa", "txtb"}) {
    const std::string before = desk.Text(name);
    desk.Set(name, "0");
    EXPECT_EQ(desk.Focus("txtingombro").held, &desk[name]) << name;
    EXPECT_EQ(desk.TakeOut(), kNonZero) << name;
    EXPECT_EQ(desk.program.focus, &desk[name]);
    EXPECT_EQ(desk.Text("txtfb"), "34.1693");
    desk.Set(name, before);
    desk.Leave();
  }
}

TEST(PortFields, ZeroIsToldInItalian) {
  BoxDesk desk(Language::Italian);
  desk.DesignVentedBox();
  desk.Set("txtlungmis", "0");
  desk.Leave();
  EXPECT_EQ(desk.TakeOut(), "message stop \"Errore\" \"Immettere un valore diverso da zero\" [OK] -> OK\n");
}

TEST(Diameter, ClickWithTheTextFromBeforeDoesNothing) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Focus("cmbDoa");
  desk.state.ProjectModified = false;
  desk.Pick("cmbDoa", "9.46964");
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_NEAR(desk.state.SectArea1Vent, 0.0070429940374231543, 1e-17);
}

TEST(Diameter, ClickMarksTheProjectAndRemembersTheText) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.ProjectModified = false;
  desk.Pick("cmbDoa", "10.4");
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_EQ(desk.state.FieldBefore, "10.4");
  desk.state.DesignChanged = true;
  desk.Leave();
  EXPECT_FALSE(desk.state.DesignChanged);  // nothing new since the click
}

TEST(Diameter, LeavingDoesNotMarkTheProject) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.ProjectModified = false;
  desk.Enter("cmbDoa", "10.4");
  EXPECT_EQ(desk.Text("txtareasez"), "84.9486");
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.state.DesignChanged);
}

TEST(Diameter, EmptyOneIsNotRememberedAndSizesNothing) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Enter("cmbDoa", "");
  EXPECT_EQ(desk.Text("txtareasez"), "70.4299");
  EXPECT_TRUE(desk.Runs());
  desk.state.FieldBefore = "marker";
  desk.Focus("cmbDoa");
  EXPECT_EQ(desk.state.FieldBefore, "marker");
}

TEST(Diameter, EmptyPickClosesTheGraphsAndSizesNothing) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Choose("frmgrafcassa.mnuspl");
  ASSERT_TRUE(desk.program.FindWindow("frmspl")->open);
  desk.Focus("cmbDoa");
  desk.state.ProjectModified = false;
  desk.Pick("cmbDoa", "");
  EXPECT_EQ(desk.Text("txtareasez"), "70.4299");
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_FALSE(desk.program.FindWindow("frmspl")->open);
}

TEST(SideB, LeavingSizesThePortWithoutMarkingTheProject) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  desk.Enter("cmbDoa", "10");
  desk.state.ProjectModified = false;
  desk.Enter("txtb", "5");
  ExpectTexts(desk, {{"txtareasez", "50"}, {"txtlungappa", "12.9775"}, {"txtlungmis", "6.37552"}});
  EXPECT_EQ(desk.state.SectArea1Vent, 0.005);
  EXPECT_TRUE(desk.state.DesignChanged);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(SideB, SameTextOnlyClearsTheDesignFlag) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  desk.state.txtareasez = "marker";
  desk.Focus("txtb");
  desk.Leave();
  EXPECT_FALSE(desk.state.DesignChanged);
  EXPECT_EQ(desk.Text("txtareasez"), "marker");
}

TEST(SideB, EmptyOneSizesNothing) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  const double area = desk.state.SectArea1Vent;
  desk.Enter("txtb", "");
  EXPECT_EQ(desk.state.SectArea1Vent, area);
  EXPECT_TRUE(desk.state.DesignChanged);
  desk.state.txtlungmis = "marker";
  DimensionaCondotto(desk.program);
  EXPECT_EQ(desk.Text("txtlungmis"), "marker");
}

TEST(SideB, EmptyOneStopsSideAToo) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  const double area = desk.state.SectArea1Vent;
  desk.state.txtb.clear();
  desk.state.ProjectModified = false;
  desk.Pick("cmbDoa", "10.4");
  EXPECT_EQ(desk.state.SectArea1Vent, area);
  EXPECT_FALSE(desk.state.ProjectModified);
}

TEST(RectangularPort, NewVolumeMakesItASquareOfTheSameArea) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  desk.Enter("cmbDoa", "10");
  desk.Enter("txtb", "5");
  desk.Enter("txtvolnetto", "60");
  ExpectTexts(desk, {{"cmbDoa", "7.07106"}, {"txtb", "7.07106"}, {"txtareasez", "50"}});
}

TEST(RectangularPort, AreaIsThatOfTheStateAndNotOfTheSides) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  desk.state.cmbDoa = "10";
  desk.state.txtb = "5";
  DimensionaCondotto(desk.program);
  ExpectTexts(desk, {{"txtareasez", "70.4299"}, {"txtlungappa", "12.9775"}});
}

TEST(NumberOfPorts, SameNumberDoesNothing) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Focus("cmbnumcond");
  desk.state.ProjectModified = desk.state.DesignChanged = false;
  desk.Pick("cmbnumcond", "1");
  EXPECT_FALSE(desk.state.ProjectModified);
  EXPECT_FALSE(desk.state.DesignChanged);
}

TEST(NumberOfPorts, EveryOneSharesTheSmallestSection) {
  for (int ports = 2; ports <= 6; ++ports) {
    BoxDesk desk;
    desk.DesignVentedBox();
    desk.state.ProjectModified = desk.state.DesignChanged = false;
    desk.Pick("cmbnumcond", std::to_string(ports));
    EXPECT_EQ(desk.state.VentNum, ports);
    EXPECT_NEAR(desk.state.SectArea1Vent, 0.0070429940374231543 / ports, 1e-17);
    EXPECT_EQ(ReadNumber(desk.Text("txtseztot")),
              ReadNumber(FormatNumber(ReadNumber(desk.Text("txtareasez")) * ports)));
    EXPECT_TRUE(desk.state.ProjectModified);
    EXPECT_TRUE(desk.state.DesignChanged);
  }
}

TEST(NumberOfPorts, StartsFromTheFixedSectionWithoutAConeArea) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.txtsd.clear();
  desk.Pick("cmbnumcond", "2");
  EXPECT_EQ(desk.state.SectArea1Vent, 0.003525652);
  EXPECT_EQ(desk.Text("txtareasez"), "35.2565");
}

TEST(SectionToggle, ChangesPicturesAndCaptions) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.state.ProjectModified = desk.state.DesignChanged = false;
  EXPECT_FALSE(desk.sheet.txtb.visible || desk.sheet.lblunib.visible);
  desk.Click("imgforma(0)");
  EXPECT_FALSE(desk.sheet.imgforma[0].visible);
  EXPECT_TRUE(desk.sheet.imgforma[1].visible);
  EXPECT_TRUE(desk.sheet.txtb.visible && desk.sheet.lblunib.visible);
  ExpectTexts(desk, {{"lblDoL", "Side a"}, {"lblUoX", "Side b"}});
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.state.DesignChanged);

  desk.state.ProjectModified = desk.state.DesignChanged = false;
  desk.Click("imgforma(1)");
  EXPECT_TRUE(desk.sheet.imgforma[0].visible);
  EXPECT_FALSE(desk.sheet.imgforma[1].visible);
  EXPECT_FALSE(desk.sheet.txtb.visible || desk.sheet.lblunib.visible);
  ExpectTexts(desk, {{"lblDoL", "Internal Diameter"}, {"lblUoX", "Cm"}});
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.state.DesignChanged);
}

TEST(SectionToggle, SpeaksItalian) {
  BoxDesk desk(Language::Italian);
  desk.DesignVentedBox();
  desk.Click("imgforma(0)");
  ExpectTexts(desk, {{"lblDoL", "Lato a"}, {"lblUoX", "Lato b"}});
  desk.Click("imgforma(1)");
  EXPECT_EQ(desk.Text("lblDoL"), "Diametro interno");
}

TEST(SectionToggle, KeepsTheArea) {
  BoxDesk desk;
  desk.DesignVentedBox();
  desk.Pick("cmbDoa", "12.1");
  desk.Click("imgforma(0)");
  ExpectTexts(desk, {{"cmbDoa", "10.7233"}, {"txtb", "10.7233"}, {"txtareasez", "114.990"}});  // √(π · 6.05²)
  desk.Click("imgforma(1)");
  ExpectTexts(desk, {{"cmbDoa", "12.1"}, {"txtareasez", "114.990"}});
}

}  // namespace
}  // namespace zefirondo
