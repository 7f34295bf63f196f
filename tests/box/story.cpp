// What happens in a story.
#include "box/story.h"

#include "box/plain_numbers.h"
#include "core/acts.h"

namespace zefirondo {
namespace {

constexpr double kPi2 = 9.8696044010893586;

std::string Decimals(double value, int decimals) {
  char text[60];
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return text;
}

}  // namespace

void Story::Tell() {
  InventWoofer();
  Compute();
  ChooseBox();
  Compare();
  const std::size_t changes = 4 + dice_.Below(5);
  for (std::size_t i = 0; i < changes && !testing::Test::HasFatalFailure(); ++i) {
    told_ += "; ";
    ChangeSomething();
    Compare();
  }
}

void Story::Enter(const char* field, const std::string& text) {
  told_ += std::string(field) + " " + text;
  ASSERT_TRUE(desk_->Set(field, text).Done()) << told_;
  desk_->Leave();
}

void Story::Pick(const char* combo, const std::string& text) {
  told_ += std::string(combo) + " " + text;
  ASSERT_TRUE(desk_->Pick(combo, text).Done()) << told_;
  desk_->Leave();
}

/// Fs 18 to 90 Hz, Qts 0.2 to 0.9, Vas 5 to 400 l, D 80 to 400 mm; the rest follows from them, to four digits or so.
void Story::InventWoofer() {
  source_ = static_cast<Source>(dice_.Below(3));
  const double fs = dice_.Between(18, 90), qts = dice_.Between(0.2, 0.9), qms = qts + dice_.Between(1, 9);
  const double vas = dice_.Between(0.005, 0.4), across = dice_.Between(80, 400), re = dice_.Between(2.8, 7.2);
  const double qes = qms * qts / (qms - qts);
  const double sd = std::pow(across / 2000, 2) * 3.14159265;
  const double mms = 1.18 * 346 * 346 * sd * sd / (4 * kPi2 * fs * fs * vas);
  const double bl = std::sqrt(2 * 3.14159265 * fs * mms * re / qes);
  auto& text = plain_.text;
  text["txtxmax"] = Decimals(dice_.Between(1, 15), 1);
  text["txtforo"] = Decimals(across * 1.1, 0);
  text["txtprof"] = Decimals(across * 0.5, 0);
  text["txtlagmagne"] = Decimals(across * 0.6, 0);
  text["txtprofmag"] = Decimals(across * 0.2, 0);
  text["txtesterno"] = Decimals(across * 1.2, 0);
  text["txtspesbordo"] = Decimals(dice_.Between(2, 12), 0);
  text["txtdiambob"] = Decimals(across * 0.2, 0);
  text["txtfs"] = Decimals(fs, 2);
  text["txtrvc"] = Decimals(re, 2);
  text["txtqmesin"] = Decimals(qms, 3);
  text["txtbl"] = Decimals(bl, 3);
  text["txtvas"] = source_ == Source::MechanicsWithVas ? Decimals(vas, 4) : "";
  if (source_ == Source::Impedance) {
    text["txtzmax"] = Decimals(re * (1 + qms / qes), 3);
    text["txtsd"] = Decimals(sd, 5);
  } else {
    text["txtd"] = Decimals(across, 1);
    text["txtqes"] = Decimals(qes, 4);
    text["txtqts"] = Decimals(qts, 3);
    text["txtmms"] = Decimals(mms, 5);
  }
}

void Story::Compute() {
  source_ == Source::Impedance ? desk_->BeginImpedance() : desk_->BeginParameters();
  auto& text = plain_.text;
  for (const char* const field : {"txtpotenza", "txtimpedenza", "txtsensibilita"}) text[field] = "90";
  for (const char* const field :
       {"txtpotenza", "txtimpedenza", "txtsensibilita", "txtxmax", "txtforo", "txtprof", "txtlagmagne", "txtprofmag",
        "txtesterno", "txtspesbordo", "txtdiambob",     "txtzmax", "txtfs",   "txtrvc",  "txtqmesin",   "txtbl",
        "txtd",       "txtsd",        "txtqes",         "txtqts",  "txtmms",  "txtvas"}) {
    const auto typed = text.find(field);
    if (typed != text.end()) AssignText(desk_->program, (*desk_)[field], typed->second);
    if (typed != text.end()) told_ += std::string(field) + " " + typed->second + " ";
  }
  desk_->Tab("dim");
  desk_->Focus("txtvolume");
  desk_->Tab("par");
  if (source_ != Source::Impedance) {
    desk_->Focus("txtd");
    desk_->Leave();
  }
  plain_.Compute(source_ == Source::Impedance);
}

void Story::ChooseBox() {
  const bool proposed_vented = plain_.ebp >= 50;
  const bool accepted = dice_.Percent(50);
  const bool vented = accepted == proposed_vented;
  desk_->TakeOut();
  desk_->platform.answers.push_back(accepted ? Answer::Yes : Answer::No);
  ASSERT_TRUE(desk_->Click("cmdcalcola").Done()) << told_;
  EXPECT_EQ(desk_->TakeOut(), plain_.Proposal(accepted ? "Yes" : "No")) << told_;
  if (!accepted) {
    desk_->Pick("frmbox.cmbtipobox", vented ? "Reflex" : "Closed");
    desk_->Click("frmbox.cmdok");
  }
  plain_.DesignBox(vented);
  told_ += vented ? "; vented" : "; closed";
}

// ---- the changes ----

void Story::ChangeSomething() {
  const bool negative = plain::Read(plain_.text["txtboxvolume"]) <= 0 || plain::Read(plain_.text["txtvolnetto"]) <= 0;
  if (negative) {  // a Qtc that cannot be reached: a volume makes sense of the box again
    const std::string litres = Decimals(dice_.Between(5, 300), 2);
    Enter("txtvolnetto", litres);
    plain_.TypeVolume(litres);
    return;
  }
  switch (dice_.Below(4)) {
    case 0: ChangeEitherBox(); break;
    case 1: ChangeShape(); break;
    default: plain_.vented ? ChangeVentedBox() : ChangeClosedBox(); break;
  }
}

void Story::ChangeClosedBox() {
  static const std::vector<std::string> listed{"0.5", "0.707", "1.0", "1.4", "2.0"};
  if (dice_.Percent(30)) {
    ChangeDrivers();
    return;
  }
  const std::string& qtc = dice_.Of(listed);
  Pick("cmballi", qtc);
  plain_.PickQtc(qtc);
}

struct ChartRow {
  const char* option;
  double vb_vas, fb_fs, f3_fs;
};

void Story::ChangeVentedBox() {
  static const std::vector<std::string> leakages{"5", "7", "10", "15", "20"};
  static const std::vector<std::string> pipes{"3.5", "4.5",  "5.7",  "6.6",   "7.5",
                                              "9.5", "10.4", "12.1", "15.56", "19.2"};
  static const std::vector<ChartRow> rows{
      {"VbSUVas224", 0.2242, 1.42, 1.77}, {"VbSUVas707", 0.7071, 1, 1}, {"VbSuVas2062", 2.062, 0.716, 0.6}};
  switch (dice_.Below(8)) {
    case 0: {
      const std::string& ql = dice_.Of(leakages);
      Pick("cmbql", ql);
      return plain_.PickLeakage(ql);
    }
    case 1: {
      const int count = 1 + static_cast<int>(dice_.Below(6));
      Pick("cmbnumcond", std::to_string(count));
      return plain_.PickPorts(count);
    }
    case 2: {
      const std::string& pipe = dice_.Of(pipes);
      Pick("cmbDoa", pipe);
      return plain_.PickDiameter(pipe);
    }
    case 3: {
      const std::string side = Decimals(Near(plain::Read(plain_.text[plain_.round ? "cmbDoa" : "txtb"])), 2);
      Enter(plain_.round ? "cmbDoa" : "txtb", side);
      return plain_.round ? plain_.TypeDiameter(side) : plain_.TypeSideB(side);
    }
    case 4: {
      const std::string length = Decimals(dice_.Between(2, 40), 1);
      Enter("txtlungmis", length);
      return plain_.TypeLength(length);
    }
    case 5:
      told_ += "toggle";
      ASSERT_TRUE(desk_->Click(plain_.round ? "imgforma(0)" : "imgforma(1)").Done());
      desk_->Leave();
      return plain_.ToggleSection();
    case 6: {
      const ChartRow& row = dice_.Of(rows);
      told_ += row.option;
      RightClick(desk_->program, desk_->sheet.txtvolnetto);
      ASSERT_TRUE(desk_->Click(std::string("frmalfa.") + row.option).Done());
      desk_->Click("frmalfa.cmdok");
      desk_->Leave();
      return plain_.TakeAlignment(row.vb_vas, row.fb_fs, row.f3_fs);
    }
    default: return ChangeDrivers();
  }
}

void Story::ChangeDrivers() {
  static const std::vector<std::pair<const char*, const char*>> wirings{
      {"optserie", "series"}, {"optparallelo", "parallel"}, {"optbiamp", "biamp"}};
  const int count = 1 + static_cast<int>(dice_.Below(4));
  const auto& [option, wiring] = dice_.Of(wirings);
  const bool change_volume = dice_.Percent(50);
  if (count != plain_.drivers) desk_->platform.answers.push_back(change_volume ? Answer::Yes : Answer::No);
  Pick("cmbnumdriver", std::to_string(count));
  told_ += std::string(" ") + wiring + (change_volume ? " Yes" : " No");
  if (count > 1) {
    ASSERT_TRUE(desk_->Click(std::string("frmwooferconn.") + option).Done());
    ASSERT_TRUE(desk_->Click("frmwooferconn.Command1").Done());
  }
  EXPECT_TRUE(desk_->platform.answers.empty()) << told_;
  plain_.ChooseDrivers(count, wiring, change_volume);
}

void Story::ChangeEitherBox() {
  static const std::vector<std::string> fillings{"1.40(0%)", "1.27(10%)", "1.17(20%)", "1.12(25%)", "1.05(33%)"};
  switch (dice_.Below(4)) {
    case 0: {
      const std::string litres = Decimals(Near(plain::Read(plain_.text["txtvolnetto"])), 3);
      Enter("txtvolnetto", litres);
      return plain_.TypeVolume(litres);
    }
    case 1: {
      const std::string litres = Decimals(dice_.Between(0, 6), 2);
      Enter("txtingombro", litres);
      return plain_.TypeOccupied(litres);
    }
    case 2: {
      const std::string& filling = dice_.Of(fillings);
      Pick("cmbk", filling);
      return plain_.PickFilling(filling);
    }
    default: return ChangeAir();
  }
}

void Story::ChangeAir() {
  const std::string celsius = Decimals(dice_.Between(5, 35), 1), pascal = Decimals(dice_.Between(85000, 104000), 0);
  told_ += "air " + celsius + " " + pascal;
  desk_->Tab("imp");
  desk_->Enter("txttemperatura", celsius);
  desk_->Enter("txtpressione", pascal);
  ASSERT_TRUE(desk_->Tab(plain_.vented ? "ref" : "chi").Done()) << told_;
  plain_.ChangeAir(celsius, pascal);
}

void Story::ChangeShape() {
  static const std::vector<std::string> tilts{"7.5", "10", "15", "20"};
  if (dice_.Percent(20)) {
    const std::string ratio = dice_.Percent(50) ? "1.25  1  0.8" : "1.62  1  0.62";
    Pick("cmbrappo", ratio);
    return plain_.PickRatio(ratio);
  }
  if (dice_.Percent(20)) return TypeDimensions();
  const bool enabled = desk_->sheet.cmbgradi.enabled;
  if (!enabled || dice_.Percent(20)) {
    Pick("cmbforma", enabled ? "Prismatic" : "Trapezoidal");
    return plain_.PickShape(!enabled);
  }
  const std::string typed = Decimals(dice_.Between(1, 33), 1);
  switch (dice_.Below(3)) {
    case 0: {
      const std::string& tilt = dice_.Of(tilts);
      Pick("cmbgradi", tilt);
      return plain_.PickTilt(tilt);
    }
    case 1: Enter("cmbgradi", typed); return plain_.TypeTilt(typed);
    default: {
      const std::string side = Decimals(plain_.width * dice_.Between(0.4, 1.1), 1);
      Enter("txtld", side);
      return plain_.TypeRear(side);
    }
  }
}

void Story::TypeDimensions() {
  std::string l, h, p;
  const auto near = [&](const char* field) { return Decimals(Near(plain::Read(plain_.text[field])) + 0.05, 2); };
  const std::size_t which = dice_.Below(6);
  if (which == 0 || which == 3 || (which == 4 && !plain_.trapezoid)) l = near("txtl");
  if (which == 1 || which == 3 || which == 5) h = near("txth");
  if (which == 2 || which == 4 || which == 5) p = near("txtp");
  told_ += "type " + l + "," + h + "," + p;
  DoubleClick(desk_->program, desk_->sheet.txtl);
  const std::pair<const char*, const std::string*> fields[] = {{"L", &l}, {"H", &h}, {"P", &p}};
  for (const auto& [name, text] : fields) {
    if (text->empty()) continue;
    ASSERT_TRUE(desk_->Set(std::string("frmdimensioni.txt") + name + "manual", *text).Done()) << told_;
  }
  ASSERT_TRUE(desk_->Click("frmdimensioni.cmdinserisci").Done()) << told_;
  desk_->Leave();
  plain_.Modify(l, h, p);
}

}  // namespace zefirondo
