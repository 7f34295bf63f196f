// Hundreds of made-up woofers, each through a box of either kind and a row of changes by chance: after every act all
// texts and numbers of the box page are those of the design as it is written a second time.
#include <gtest/gtest.h>

#include "box/plain_numbers.h"
#include "box/story.h"
#include "response/plain_box.h"
#include "response/reference_level.h"

namespace zefirondo {

void Story::Compare() {
  ASSERT_TRUE(desk_->Runs()) << told_ << desk_->TakeOut();
  CompareTexts();
  CompareNumbers();
  CompareFlags();
  CompareCurve();
}

void Story::CompareTexts() {
  for (auto& [field, text] : plain_.text) {
    if (plain_.IsOnTheEdgeOf(field, desk_->Text(field))) text = desk_->Text(field);
    ASSERT_EQ(desk_->Text(field), text) << field << "\n" << told_;
  }
}

void Story::CompareNumbers() {
  const plain::Design& d = plain_;
  const Numbers either{{"roo", d.roo},
                       {"Velocity", d.velocity},
                       {"Temperature", d.temperature},
                       {"Pressure", d.pressure},
                       {"Kinternal", d.kinternal},
                       {"Qts", d.qts},
                       {"Vas", d.vas},
                       {"EBP", d.ebp},
                       {"Vba", d.vba},
                       {"WidthPrism", d.width},
                       {"HeightPrism", d.height},
                       {"DepthPrism", d.depth},
                       {"DepthPrismTrapez", d.trapezoid_depth},
                       {"WidthRearPrism", d.rear}};
  const Numbers closed{{"Vc", d.vc}, {"VbaClosed", d.vba_closed}, {"Qtc", d.qtc}, {"Fc", d.fc}, {"F3c", d.f3c}};
  const Numbers vented{{"Vb", d.vb}, {"VbaVented", d.vba_vented}, {"Fb", d.fb}, {"F3v", d.f3v},
                       {"Ql", d.ql}, {"SectArea1Vent", d.area}};
  for (const Numbers* const numbers : {&either, d.vented ? &vented : &closed}) {
    for (const auto& [name, value] : *numbers) {
      ASSERT_NEAR(desk_->Number(name), value, 1e-11 * (std::fabs(value) + 1e-3)) << name << "\n" << told_;
    }
  }
}

void Story::CompareFlags() {
  const ProjectState& s = desk_->state;
  const Sheet& sheet = desk_->sheet;
  ASSERT_EQ(s.DriversNum, plain_.drivers) << told_;
  ASSERT_EQ(s.VentNum, plain_.ports) << told_;
  ASSERT_EQ(s.WooferWiring, plain_.wiring) << told_;
  ASSERT_EQ(s.DesignChanged, plain_.design_changed) << told_;
  ASSERT_EQ(s.AirChanged, plain_.air_changed) << told_;
  ASSERT_EQ(s.DimEditing, plain_.dim_editing) << told_;
  ASSERT_NEAR(sheet.LastTilt, plain_.last_tilt, 1e-9) << told_;
  ASSERT_EQ(sheet.RoundPort(), plain_.round) << told_;
  ASSERT_EQ(sheet.imgbox[1].visible, plain_.trapezoid) << told_;
  ASSERT_EQ(sheet.imgbox[0].visible, !plain_.trapezoid) << told_;
  ASSERT_EQ(sheet.txtareasez.fore == 255, plain_.vented && plain_.narrow) << told_;
  const double level = ReferenceLevel(s, TransducerFs(s), s.Vas, ReadNumber(s.txtqes)) + WiringGain(s);
  ASSERT_NEAR(level, plain_.LevelOfAll(), 1e-9) << told_;
  std::size_t refusals = 0;
  for (std::size_t at = desk_->out.find("angle is too high"); at != std::string::npos;
       at = desk_->out.find("angle is too high", at + 1)) {
    ++refusals;
  }
  ASSERT_EQ(refusals, static_cast<std::size_t>(plain_.too_steep)) << told_;
}

/// Some acts leave the curve as it is: it is that of the last sweep.
void Story::CompareCurve() {
  const plain::Design::Sweep& w = plain_.swept;
  const Curve& levels = desk_->state.BoxDb;
  ASSERT_EQ(levels.size(), 6828U) << told_;
  for (const std::size_t i : {0U, 12U, 30U, 55U, 90U, 160U, 700U, 6826U}) {
    const long double f = 0.7324L * static_cast<long double>(i + 1);
    const long double level = plain_.vented ? plain::VentedDb({w.vb, plain_.fs, plain_.qts, w.fb, w.vas, w.ql}, f)
                                            : plain::ClosedDb(w.qtc, w.fc, f);
    ASSERT_NEAR(levels[i], static_cast<double>(level), 1e-7) << "point " << i << "\n" << told_;
  }
  const double highest = std::max(0.0, *std::max_element(levels.begin(), levels.end()));
  ASSERT_EQ(desk_->state.BoxScaleTop, std::nearbyint(highest) + 25) << told_;
}

namespace {

class RandomDesigns : public testing::TestWithParam<int> {};

TEST_P(RandomDesigns, AreThoseOfTheSecondWriting) {
  for (int i = 0; i < 40; ++i) {
    SCOPED_TRACE("story " + std::to_string(GetParam() * 40 + i));
    Story story(static_cast<std::uint64_t>(GetParam() * 40 + i));
    story.Tell();
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Box, RandomDesigns, testing::Range(0, 10));

}  // namespace
}  // namespace zefirondo
