// From the data of a transducer to its whole set of parameters and to the proposal of a box.
//
// Expected numbers are worked out in Python from the textbook relations. Entered parameters: Fs 35 Hz, Re 5.6 ohm,
// Qms 4.2, Qes 0.45, Bl 9.5 T·m, Mms 0.038 kg, Sd 0.03463 m² (as the field shows that of 210 mm), Rs 0.1 ohm, in the
// air of a new sheet. Impedance: Fs 30 Hz, Zmax 45 ohm, Re 6 ohm, Qms 5, Bl 10 T·m, Sd 0.035 m².
#include "transducer/thiele_small.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "core/acts.h"
#include "core/air.h"
#include "core/events.h"
#include "core/numbers.h"
#include "core/run_time_error.h"
#include "support/desk.h"

namespace zefirondo {
namespace {

using Texts = std::vector<std::pair<const char*, const char*>>;

void ExpectTexts(Desk& desk, const Texts& texts) {
  for (const auto& [field, text] : texts) EXPECT_EQ(desk.Text(field), text) << field;
}

std::string Proposal(const std::string& ebp, const std::string& text, const std::string& question,
                     const std::string& answer) {
  return "message information \"EBP= " + ebp + "\" \"For this transducer is " + text + "\\nDo you want to create a " +
         question + " Box?\" [Yes No] -> " + answer + "\n";
}

// ---- the functions ----

TEST(QFromImpedance, OfAPeakOfSevenAndAHalfTimesRe) {
  const ImpedanceQ q = QFromImpedance(45, 6, 5);
  EXPECT_EQ(q.rzero, 7.5);
  EXPECT_EQ(q.res, 39.0);
  EXPECT_EQ(q.qms, 5.0);
  EXPECT_NEAR(q.qes, 5 / 6.5, 1e-15);
  EXPECT_NEAR(q.qts, 5 / 7.5, 1e-15);
}

TEST(QFromImpedance, QtsIsTheParallelOfItsParts) {
  const ImpedanceQ q = QFromImpedance(52.3, 6.1, 3.7);
  EXPECT_NEAR(1 / q.qts, 1 / q.qms + 1 / q.qes, 1e-14);
}

TEST(QmsFromBandwidth, IsTheRootOfThePeakOverTheRelativeWidth) {
  EXPECT_NEAR(QmsFromBandwidth(30, 45, 6, 16.4), 5.009657538157008, 1e-13);  // sqrt(7.5) · 30 / 16.4
}

TEST(QFromImpedance, HasNoTestsOfItsOwn) {
  EXPECT_THROW(static_cast<void>(QFromImpedance(45, 0, 5)), RunTimeError);
  EXPECT_THROW(static_cast<void>(QFromImpedance(6, 6, 5)), RunTimeError);
  EXPECT_THROW(static_cast<void>(QmsFromBandwidth(30, 45, 6, 0)), RunTimeError);
  EXPECT_THROW(static_cast<void>(QmsFromBandwidth(30, -45, 6, 10)), RunTimeError);
}

TEST(QtsWithAmplifier, RaisesQes) {
  EXPECT_NEAR(QtsWithAmplifier(4.2, 0.45, 5.6, 0.1), 0.4129959746981024, 1e-15);
  EXPECT_NEAR(QtsWithAmplifier(4.2, 0.45, 5.6, 0), 4.2 * 0.45 / (4.2 + 0.45), 1e-16);
}

TEST(TsDaMeccanici, GivesTheMechanicalSideAndItsElectricalImage) {
  const Mechanical m = TsDaMeccanici(35, 4.2, 9.5, 0.038);
  EXPECT_NEAR(m.cms, 0.0005441524363176047, 1e-17);
  EXPECT_NEAR(m.rms, 1.9896753472735336, 1e-14);
  EXPECT_NEAR(m.lces, 0.04910975737766382, 1e-15);
  EXPECT_NEAR(m.cmes, 0.0004210526315789474, 1e-17);
  EXPECT_NEAR(m.res, 45.35915878119022, 1e-12);
}

TEST(TsDaMeccanici, ItsImageResonatesWithTheSameQ) {
  const Mechanical m = TsDaMeccanici(35, 4.2, 9.5, 0.038);
  EXPECT_NEAR(1 / (kTwoPi * std::sqrt(m.lces * m.cmes)), 35, 1e-10);
  EXPECT_NEAR(m.res * std::sqrt(m.cmes / m.lces), 4.2, 1e-12);
  EXPECT_NEAR(LcesFromRes(m.res, 4.2, 35 * kTwoPi), m.lces, 1e-15);
  EXPECT_NEAR(CmesFromRes(m.res, 4.2, 35 * kTwoPi), m.cmes, 1e-17);
}

TEST(TsAcustici, GivesTheAcousticSide) {
  const Acoustic a =
      TsAcustici(0.03463, 0.0005441524363176047, 0.038, 1.9896753472735336, 1.1854132477839954, 346.0310925914028);
  EXPECT_NEAR(a.cas, 6.525676808569717e-07, 1e-20);
  EXPECT_NEAR(a.mas, 31.686816841609854, 1e-12);
  EXPECT_NEAR(a.ras, 1659.117850087446, 1e-9);
  EXPECT_NEAR(a.vas, 0.09262443793396131, 1e-15);
}

TEST(Efficiency, InPercent) {
  // 35³ · 4π² / 346.0310925914028³ · 100 · 0.09262443793396131 / 0.45
  EXPECT_NEAR(Efficiency(35, 0.09262443793396131, 0.45, 346.0310925914028), 0.840875249363071, 1e-12);
}

TEST(VolumeTrasduttore, IsATruncatedConeAndAMagnet) {
  // F = 19² + 115² + 19 · 115 = 15771; (110 − 50 − 8) · π · F / 3e6 + 50 · π · 70² / 1e6
  EXPECT_NEAR(VolumeTrasduttore({230, 110, 140, 50, 38, 8}), 1.6284885342854178, 1e-14);
  EXPECT_NEAR(VolumeTrasduttore({230, 110, 140, 50, 38, 0}), 1.76061135492479, 1e-14);
}

TEST(VolumeTrasduttore, ShortFormLeavesOutMagnetAndRim) {
  EXPECT_NEAR(VolumeTrasduttoreBreve({230, 110, 140, 50, 38, 8}), 0.9909211547952915, 1e-14);
  EXPECT_EQ(VolumeTrasduttoreBreve({230, 110, 140, 50, 38, 8}), VolumeTrasduttoreBreve({230, 110, 200, 50, 38, 3}));
}

// ---- the volume on the page "dim" ----

class SizePage : public testing::Test {
 protected:
  void SetUp() override {
    desk.BeginParameters();
    desk.Tab("dim");
    for (const auto& [field, text] : Texts{{"txtforo", "230"},
                                           {"txtprof", "110"},
                                           {"txtlagmagne", "140"},
                                           {"txtprofmag", "50"},
                                           {"txtesterno", "260"},
                                           {"txtspesbordo", "8"},
                                           {"txtdiambob", "38"}}) {
      desk.Set(field, text);
    }
  }
  Desk desk;
};

TEST_F(SizePage, ShowsTheVolumeWhenItsFieldGetsTheFocus) {
  desk.Focus("txtvolume");
  EXPECT_EQ(desk.Text("txtvolume"), "1.62848");
  EXPECT_TRUE(desk.sheet.cmdnext1.enabled);
}

TEST_F(SizePage, TakesAnEmptyRimForZero) {
  *desk["txtspesbordo"].text = "";
  desk.Focus("txtvolume");
  EXPECT_EQ(desk.Text("txtvolume"), "1.76061");
}

TEST_F(SizePage, ComputesNothingWhileASizeIsMissing) {
  for (const char* const field : {"txtprof", "txtforo", "txtlagmagne", "txtprofmag", "txtdiambob"}) {
    const std::string before = desk.Text(field);
    *desk[field].text = "";
    desk.program.focus = nullptr;
    desk.Focus("txtvolume");
    EXPECT_EQ(desk.Text("txtvolume"), "") << field;
    *desk[field].text = before;
  }
}

TEST_F(SizePage, EnterAndTabInTheVoiceCoilShowAFirstFigure) {
  for (const char* const key : {"\n", "\t"}) {
    *desk["txtvolume"].text = "";
    desk.sheet.cmdnext1.enabled = false;
    desk.Type("txtdiambob", key);
    EXPECT_EQ(desk.Text("txtvolume"), "0.99092");
    EXPECT_TRUE(desk.sheet.cmdnext1.enabled);
    EXPECT_EQ(desk.program.focus, &desk["txtdiambob"]);
  }
  desk.Focus("txtvolume");
  EXPECT_EQ(desk.Text("txtvolume"), "1.62848");
}

TEST_F(SizePage, ShowsNoFirstFigureWhileASizeIsMissing) {
  for (const char* const field : {"txtprof", "txtforo", "txtlagmagne", "txtprofmag"}) {
    const std::string before = desk.Text(field);
    *desk[field].text = "";
    desk.program.focus = &desk["txtdiambob"];
    PressKey(desk.program, 13);
    EXPECT_EQ(desk.Text("txtvolume"), "") << field;
    *desk[field].text = before;
  }
}

// ---- the checks of `cmdcalcola` ----

TEST(Compute, AsksForTheRatingsFirst) {
  for (const char* const rating : {"txtpotenza", "txtimpedenza", "txtsensibilita", "txtxmax"}) {
    Desk desk;
    desk.BeginParameters();
    desk.FillWoofer();
    *desk[rating].text = "";
    *desk["txtvolume"].text = "";
    desk.Click("cmdcalcola");
    EXPECT_EQ(desk.TakeOut(),
              "message stop \"Error\" \"Enter a nonzero value\\n\\nRms power handling, Nominal impedance, Sensitivity "
              "@ (1W/1m), Max excursion Xmax\" [OK] -> OK\n")
        << rating;
    EXPECT_EQ(desk.sheet.selected_tab, "gen");
    EXPECT_EQ(desk.Text("txtcms"), "");
    EXPECT_FALSE(desk["txtfs"].locked);
    EXPECT_TRUE(desk["cmdcalcola"].enabled);
  }
}

TEST(Compute, SpeaksItalianOfWhatIsMissing) {
  Desk desk(Language::Italian);
  desk.BeginParameters();
  desk.FillWoofer();
  *desk["txtxmax"].text = "";
  desk.Click("cmdcalcola");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Errore\" \"Specificare dei valori diversi da zero per i campi\\n\\nPotenza RMS, Impedenza "
            "nominale, "
            "Sensibilità (1W/1m), Escursione massima Xmax\" [OK] -> OK\n");
  *desk["txtxmax"].text = "5";
  *desk["txtvolume"].text = "";
  desk.Tab("par");
  desk.Click("cmdcalcola");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Dati incompleti\" \"Inserire i valori delle dimensioni del trasduttore\" [OK] -> OK\n");
}

TEST(Compute, AsksForTheSizes) {
  Desk desk;
  desk.BeginParameters();
  desk.FillWoofer();
  *desk["txtvolume"].text = "";
  desk.Click("cmdcalcola");
  EXPECT_EQ(desk.TakeOut(),
            "message stop \"Incomplete Data\" \"Enter values for the size of the transducer\" [OK] -> OK\n");
  EXPECT_EQ(desk.sheet.selected_tab, "dim");
  EXPECT_EQ(desk.Text("txtcms"), "");
  EXPECT_FALSE(desk["txtfs"].locked);
  EXPECT_FALSE(desk.state.ProjectModified);
}

// ---- entered parameters ----

TEST(EnteredParameters, GiveTheWholeSet) {
  Desk desk;
  desk.DesignVented();
  ExpectTexts(desk, {{"txtsd", "0.03463"},
                     {"txtcms", "544.152E-06"},
                     {"txtrms", "1.98967"},
                     {"txtlces", "49.1097"},
                     {"txtcmes", "421.052"},
                     {"txtrmes", "45.3591"},
                     {"txtcas", "0.65256E-06"},
                     {"txtmas", "31.6868"},
                     {"txtras", "1659.11"},
                     {"txtvas", "0.09262"},
                     {"txtrendimento", "0.84087"},
                     {"txtqmes", "4.2"},
                     {"txtqes", "0.45"},
                     {"txtqts", "0.41"}});
  EXPECT_NEAR(desk.state.Qts, 0.4129959746981024, 1e-15);
  EXPECT_NEAR(desk.state.Vas, 0.09262443793396131, 1e-15);
  EXPECT_NEAR(desk.state.EBP, 35 / 0.45, 1e-12);
}

/// A computed project without a box: the proposal is refused.
void ComputeOnly(Desk& desk) {
  desk.platform.answers.push_back(Answer::No);
  desk.Click("cmdcalcola");
}

void BeginFilled(Desk& desk) {
  desk.BeginParameters();
  desk.FillWoofer();
}

TEST(EnteredParameters, DropATypedQts) {
  Desk plain;
  BeginFilled(plain);
  ComputeOnly(plain);
  Desk other;
  BeginFilled(other);
  other.Set("txtqts", "0.9");
  ComputeOnly(other);
  EXPECT_EQ(other.state.Qts, plain.state.Qts);
  EXPECT_EQ(other.state.Vas, plain.state.Vas);
  EXPECT_EQ(other.Text("txtqts"), "0.9");
}

TEST(EnteredParameters, TakeATypedVasAsItStands) {
  Desk desk;
  BeginFilled(desk);
  desk.Set("txtvas", "0.1");
  ComputeOnly(desk);
  EXPECT_EQ(desk.state.Vas, 0.1);
  // The efficiency follows it: 0.84087 · 0.1 / 0.0926244
  ExpectTexts(desk, {{"txtvas", "0.1"}, {"txtcas", "0.65256E-06"}, {"txtrendimento", "0.90783"}});
}

TEST(EnteredParameters, WithoutAmplifierResistanceQtsIsThatOfTheTransducer) {
  Desk desk;
  BeginFilled(desk);
  desk.state.RsAmplifier = 0;
  ComputeOnly(desk);
  EXPECT_NEAR(desk.state.Qts, 4.2 * 0.45 / (4.2 + 0.45), 1e-16);
}

TEST(EnteredParameters, PreferTheAreaToTheDiameter) {
  Desk desk;
  BeginFilled(desk);
  *desk["txtsd"].text = "0.035";
  ComputeOnly(desk);
  EXPECT_EQ(desk.Text("txtmas"), FormatNumber(0.038 / (0.035 * 0.035)));
  EXPECT_EQ(desk.Text("txtsd"), "0.035");
}

TEST(EnteredParameters, DeriveTheAreaThatTheFieldDoesNotHave) {
  Desk desk;
  BeginFilled(desk);
  *desk["txtsd"].text = "";
  desk["cmdcalcola"].enabled = true;
  desk.platform.answers.push_back(Answer::No);
  desk["cmdcalcola"].on.click(desk.program);
  EXPECT_EQ(desk.Text("txtsd"), "0.03463");
  const double area = 3.14159265358979 * 0.105 * 0.105;  // not cut to the field's figures
  EXPECT_EQ(desk.Text("txtmas"), FormatNumber(0.038 / (area * area)));
}

TEST(EnteredParameters, UseTheAirAsItIs) {
  Desk desk;
  BeginFilled(desk);
  desk.state.roo = 1.2;
  desk.state.Velocity = 340;
  ComputeOnly(desk);
  EXPECT_NEAR(desk.state.Vas, 1.2 * 6.525676808569717e-07 * 340 * 340, 1e-15);
}

TEST(EnteredParameters, WithAZeroAmongTheDivisorsEndTheProgram) {
  Desk desk;
  BeginFilled(desk);
  *desk["txtqmesin"].text = "0";
  desk.TakeOut();
  RunEvent(desk.program, [&] { desk["cmdcalcola"].on.click(desk.program); });
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Division by zero\" [OK] -> OK\nended error\n");
}

// ---- an impedance project ----

/// An impedance project whose values were typed: no import stands behind them.
void BeginTypedImpedance(Desk& desk) {
  desk.BeginImpedance();
  for (const auto& [field, text] : Texts{{"txtpotenza", "100"},
                                         {"txtimpedenza", "8"},
                                         {"txtsensibilita", "90"},
                                         {"txtxmax", "5"},
                                         {"txtvolume", "1.6"},
                                         {"txtzmax", "45"},
                                         {"txtfs", "30"},
                                         {"txtrvc", "6"},
                                         {"txtqmesin", "5"},
                                         {"txtbl", "10"},
                                         {"txtsd", "0.035"}}) {
    AssignText(desk.program, desk[field], text);
  }
  SelectTab(desk.program, "par");
  desk.program.focus = nullptr;
}

TEST(ImpedanceProject, GivesTheWholeSet) {
  Desk desk;
  BeginTypedImpedance(desk);
  ComputeOnly(desk);
  ExpectTexts(desk, {{"txtqts", "0.66666"},
                     {"txtqes", "0.76923"},
                     {"txtqmes", "5"},
                     {"txtrmes", "39"},
                     {"txtlces", "41.3802"},
                     {"txtcmes", "680.149"},
                     {"txtmms", "0.06801"},
                     {"txtcms", "413.802E-06"},
                     {"txtrms", "2.56410"},
                     {"txtcas", "0.50690E-06"},
                     {"txtmas", "55.5223"},
                     {"txtras", "2093.14"},
                     {"txtvas", "0.07194"},
                     {"txtrendimento", "0.24063"}});
  EXPECT_EQ(desk.state.Rzero, 7.5);
  EXPECT_NEAR(desk.state.EBP, 39.0, 1e-12);
  EXPECT_NEAR(desk.state.Qts, 0.6762749445676275, 1e-15);
  EXPECT_NEAR(desk.state.Vas, 0.0719498002960728, 1e-15);
}

TEST(ImpedanceProject, WithAnImportTakesQmsFromTheBandwidth) {
  Desk desk;
  BeginTypedImpedance(desk);
  desk.state.Fs = 30;
  desk.state.Zmax = 45;
  desk.state.Bw = 16.4;
  *desk["txtfs"].text = "99";  // the texts play no part
  *desk["txtzmax"].text = "99";
  *desk["txtqmesin"].text = "5.01";
  ComputeOnly(desk);
  ExpectTexts(desk, {{"txtqts", "0.66795"},
                     {"txtqes", "0.77071"},
                     {"txtqmes", "5.01"},
                     {"txtrmes", "39"},
                     {"txtlces", "41.3005"},
                     {"txtcmes", "681.463"},
                     {"txtmms", "0.06814"},
                     {"txtcms", "413.005E-06"},
                     {"txtrms", "2.56410"},
                     {"txtcas", "0.50593E-06"},
                     {"txtmas", "55.6296"},
                     {"txtras", "2093.14"},
                     {"txtvas", "0.07181"},
                     {"txtrendimento", "0.23970"}});
  EXPECT_NEAR(desk.state.EBP, 38.9248164200338, 1e-12);
  EXPECT_NEAR(desk.state.Qts, 0.6775811747839855, 1e-14);
  EXPECT_NEAR(desk.state.Vas, 0.07181109661494173, 1e-15);
}

TEST(ImpedanceProject, ReadsMmsAndRmsBackFromTheFigures) {
  // By python: Res = 107.0002 − 6.1235 = 100.8767 is shown as 100.876, and Cmes = 262.952930 µF as 262.952. Of these
  // Ras = 10² / 100.876 / 0.035² = 809.237 and Mas = 10² · 262.952e-6 / 0.035² = 21.4654; the full figures would give
  // 809.231 and 21.4655.
  Desk desk;
  BeginTypedImpedance(desk);
  *desk["txtzmax"].text = "107.0002";
  *desk["txtrvc"].text = "6.1235";
  ComputeOnly(desk);
  ExpectTexts(desk, {{"txtrmes", "100.876"}, {"txtcmes", "262.952"}, {"txtras", "809.237"}, {"txtmas", "21.4654"}});
}

TEST(ImpedanceProject, WithoutAmplifierResistanceShowsItsQts) {
  Desk desk;
  BeginTypedImpedance(desk);
  desk.state.RsAmplifier = 0;
  ComputeOnly(desk);
  EXPECT_EQ(desk.Text("txtqts"), FormatNumber(desk.state.Qts));
}

void ExpectClosingWithoutProposal(Desk& desk) {
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_TRUE(desk["txtfs"].locked);
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_FALSE(desk["cmdcalcola"].enabled);
}

TEST(ImpedanceProject, WithoutForceFactorEndsAtTheElectricalValues) {
  Desk desk;
  BeginTypedImpedance(desk);
  *desk["txtbl"].text = "";
  desk["cmdcalcola"].on.click(desk.program);
  ExpectTexts(desk, {{"txtcmes", "680.149"}, {"txtmms", ""}, {"txtcms", ""}, {"txtcas", ""}, {"txtvas", ""}});
  EXPECT_EQ(desk.Text("txtrendimento"), "");
  ExpectClosingWithoutProposal(desk);
}

TEST(ImpedanceProject, WithoutConeEndsAtTheMechanicalValues) {
  Desk desk;
  BeginTypedImpedance(desk);
  *desk["txtsd"].text = *desk["txtd"].text = "";
  desk["cmdcalcola"].on.click(desk.program);
  ExpectTexts(desk, {{"txtmms", "0.06801"}, {"txtcms", "413.802E-06"}, {"txtcas", ""}, {"txtvas", ""}});
  EXPECT_EQ(desk.state.Vas, 0.0);
  ExpectClosingWithoutProposal(desk);
}

TEST(ImpedanceProject, OfAPeakAtReEndsTheProgram) {
  Desk desk;
  BeginTypedImpedance(desk);
  *desk["txtzmax"].text = "6";
  desk.Click("cmdcalcola");
  EXPECT_EQ(desk.TakeOut(), "message stop \"Error\" \"Division by zero\" [OK] -> OK\nended error\n");
}

// ---- the proposal ----

struct ProposalRow {
  const char* fs;
  const char* qes;
  std::string proposal;
};

TEST(Proposal, FollowsTheEfficiencyBandwidthProduct) {
  const std::vector<ProposalRow> rows{
      {"35", "0.9", Proposal("38.8888", "needed a Closed Box", "Closed", "No")},
      {"49.9", "1", Proposal("49.9", "needed a Closed Box", "Closed", "No")},
      {"50", "1", Proposal("50", "needed a Vented Box", "Vented", "No")},
      {"50.1", "1", Proposal("50.1", "recommended a Vented Box", "Vented", "No")},
      {"89.9", "1", Proposal("89.9", "recommended a Vented Box", "Vented", "No")},
      {"90", "1", Proposal("90", "needed a Vented Box", "Vented", "No")},
      {"35", "0.35", Proposal("100", "needed a Vented Box", "Vented", "No")},
  };
  for (const ProposalRow& row : rows) {
    Desk desk;
    BeginFilled(desk);
    *desk["txtfs"].text = row.fs;
    *desk["txtqes"].text = row.qes;
    ComputeOnly(desk);
    EXPECT_EQ(desk.TakeOut(), row.proposal) << row.fs;
  }
}

TEST(Proposal, SpeaksItalian) {
  Desk desk(Language::Italian);
  BeginFilled(desk);
  ComputeOnly(desk);
  EXPECT_EQ(desk.TakeOut(),
            "message information \"EBP= 77.7777\" \"Per questo woofer è consigliabile un box reflex\\nSi per box "
            "reflex - No per altro box\" [Yes No] -> No\n");
}

TEST(Proposal, SpeaksItalianOfTheOtherTwo) {
  const std::vector<ProposalRow> rows{
      {"35", "0.9",
       "\"EBP= 38.8888\" \"Per questo woofer è necessario un box chiuso\\nSi per box chiuso - No per altro box\""},
      {"35", "0.35",
       "\"EBP= 100\" \"Per questo woofer è necessario un box reflex\\nSi per box reflex - No per altro box\""}};
  for (const ProposalRow& row : rows) {
    Desk desk(Language::Italian);
    BeginFilled(desk);
    *desk["txtqes"].text = row.qes;
    ComputeOnly(desk);
    EXPECT_EQ(desk.TakeOut(), "message information " + row.proposal + " [Yes No] -> No\n");
  }
}

TEST(Proposal, OfAProductOfZeroIsNotMade) {
  // Fs / Qes below the smallest double, with the other figures inside what a field can show.
  Desk desk;
  BeginFilled(desk);
  desk.state.RsAmplifier = 0;
  for (const auto& [field, text] :
       Texts{{"txtfs", "1E-20"}, {"txtqes", "1E400"}, {"txtqmesin", "0.5"}, {"txtmms", "1E13"}, {"txtbl", "0.1"}}) {
    *desk[field].text = text;
  }
  desk.Click("cmdcalcola");
  EXPECT_EQ(desk.state.EBP, 0);
  EXPECT_EQ(desk.TakeOut(), "");
  EXPECT_FALSE(desk.program.windows.frmbox.window.open);
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_TRUE(desk["txtfs"].locked);  // the closing runs
  EXPECT_FALSE(desk["cmdcalcola"].enabled);
  EXPECT_TRUE(desk.state.ProjectModified);
}

TEST(Proposal, RefusedOpensTheChoiceBehindWhichTheClosingHasRun) {
  Desk desk;
  BeginFilled(desk);
  ComputeOnly(desk);
  EXPECT_TRUE(desk.program.windows.frmbox.window.open);
  EXPECT_TRUE(desk["txtfs"].locked);
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_EQ(desk.Text("txtfstrasdu"), "35");
}

TEST(Proposal, YesDesignsAClosedBox) {
  Desk desk;
  desk.DesignClosed();
  EXPECT_EQ(desk.sheet.selected_tab, "chi");
  ASSERT_EQ(desk.sheet.tabs.size(), 5U);
  EXPECT_EQ(desk.sheet.tabs[3].key, "chi");
  EXPECT_EQ(desk.sheet.tabs[3].caption, "Closed Box");
  EXPECT_GT(desk.state.Vc, 0.0);
  EXPECT_FALSE(desk.state.BoxDb.empty());
}

TEST(Proposal, YesDesignsAVentedBox) {
  Desk desk;
  desk.DesignVented();
  EXPECT_EQ(desk.sheet.selected_tab, "ref");
  ASSERT_EQ(desk.sheet.tabs.size(), 5U);
  EXPECT_EQ(desk.sheet.tabs[3].key, "ref");
  EXPECT_EQ(desk.sheet.tabs[3].caption, "Vented Box");
  // Vb = 20 · Vas · Qts^3.3 with the corrected Qts
  EXPECT_NEAR(desk.state.Vb, 20 * 0.09262443793396131 * std::pow(0.4129959746981024, 3.3), 1e-14);
}

TEST(Proposal, NoDesignsNothingYet) {
  Desk desk;
  BeginFilled(desk);
  ComputeOnly(desk);
  EXPECT_EQ(desk.sheet.tabs.size(), 4U);
  EXPECT_TRUE(desk.state.BoxDb.empty());
}

// ---- the closing ----

TEST(Closing, LocksTheTransducerAndFreesPrintAndSave) {
  Desk desk;
  BeginFilled(desk);
  desk["mnuannulla"].enabled = desk["mnuannullasequenza"].enabled = true;
  ComputeOnly(desk);
  for (const char* const field : {"txtfs", "txtrvc", "txtpotenza", "txtforo", "cmbnumvc", "txtspesbordo"}) {
    EXPECT_TRUE(desk[field].locked) << field;
  }
  EXPECT_FALSE(desk["mnuannulla"].enabled);
  EXPECT_FALSE(desk["mnuannullasequenza"].enabled);
  EXPECT_TRUE(desk["mnusalvadir"].enabled);
  EXPECT_TRUE(desk["mnustampa"].enabled);
  EXPECT_FALSE(desk["cmdcalcola"].enabled);
  EXPECT_TRUE(desk.state.ProjectModified);
  EXPECT_TRUE(desk.state.GrafCassaOpen);
  EXPECT_EQ(desk.Text("txtfstrasdu"), "35");
}

TEST(Closing, KeepsAResonanceThatTheBoxPageHasAlready) {
  Desk desk;
  BeginFilled(desk);
  *desk["txtfstrasdu"].text = "33";
  ComputeOnly(desk);
  EXPECT_EQ(desk.Text("txtfstrasdu"), "33");
}

TEST(Closing, RefusesTypingUntilAReset) {
  Desk desk;
  desk.DesignVented();
  desk.Tab("par");
  EXPECT_EQ(desk.Set("txtfs", "40").refusal, Refusal::Locked);
  desk.Click("cmdreset");
  EXPECT_TRUE(desk.Set("txtzmax", "45").Done());  // the reset leaves the focus there
  EXPECT_TRUE(desk.Set("txtfs", "40").Done());
}

TEST(AirAfterTheComputation, ChangesTheFieldOfVasOnly) {
  Desk desk;
  desk.DesignVented();
  desk.Tab("imp");
  const double vas = desk.state.Vas;
  desk.Set("txttemperatura", "30");
  const Air air = AriaDaTP(30, 101325);
  EXPECT_EQ(desk.Text("txtvas"), FormatNumber(air.velocity * air.velocity * (0.65256E-06 * air.roo)));
  EXPECT_EQ(desk.state.Vas, vas);
  desk.Leave();
  EXPECT_TRUE(desk.state.AirChanged);
}

}  // namespace
}  // namespace zefirondo
