#include "core/record.h"

#include <array>

namespace zefirondo {
namespace {

struct Row {
  std::string_view name;
  ValueRef (*member)(const ProjectState&);
};

// clang-format off
#define ROW(member) {#member, [](const ProjectState& state) -> ValueRef { return &state.member; }}
constexpr std::array kRows = std::to_array<Row>({
      ROW(Temperature), ROW(Pressure), ROW(roo), ROW(Velocity), ROW(Kinternal), ROW(Fs), ROW(Zmax), ROW(Bw),
      ROW(Qts), ROW(Vas), ROW(EBP), ROW(Rzero), ROW(DriversNum), ROW(VentNum), ROW(SectArea1Vent), ROW(Ql),
      ROW(Qtc), ROW(Fc), ROW(F3c), ROW(Fb), ROW(F3v), ROW(Vb), ROW(Vc), ROW(VbaClosed), ROW(VbaVented),
      ROW(Vba), ROW(WidthPrism), ROW(HeightPrism), ROW(DepthPrism), ROW(DepthPrismTrapez), ROW(WidthRearPrism),
      ROW(WooferWiring), ROW(RsAmplifier), ROW(WoodThickness), ROW(SPLmax), ROW(USPL), ROW(AlfaValue),
      ROW(AlfaSecond), ROW(ValRangeLow), ROW(ValRangeHigh), ROW(ValResult), ROW(BoxScaleTop), ROW(SplScaleTop),
      ROW(ImpScaleTop), ROW(ImpFreq), ROW(ImpZ), ROW(BoxFreq), ROW(BoxDb), ROW(SplFreq), ROW(SplDb),
      ROW(SplMaxFreq), ROW(SplMaxDb), ROW(AirFreq), ROW(AirSpeed), ROW(OverlaySplFreq), ROW(OverlaySplDb),
      ROW(PhaseFreq), ROW(PhaseDeg), ROW(FilterFreq), ROW(FilterDb), ROW(FilterPhaseFreq), ROW(FilterPhaseDeg),
      ROW(SumFreq), ROW(SumDb), ROW(SumPhaseDeg), ROW(Set1BoxFreq), ROW(Set1BoxDb), ROW(Set2BoxFreq),
      ROW(Set2BoxDb), ROW(Set1SplFreq), ROW(Set1SplDb), ROW(Set2SplFreq), ROW(Set2SplDb), ROW(Set1PhaseFreq),
      ROW(Set1PhaseDeg), ROW(Set2PhaseFreq), ROW(Set2PhaseDeg), ROW(PhaseX1), ROW(PhaseHz1), ROW(PhaseDeg1),
      ROW(PhaseX2), ROW(PhaseHz2), ROW(PhaseDeg2), ROW(Set1BoxStored), ROW(Set2BoxStored), ROW(Set1BoxShown),
      ROW(Set2BoxShown), ROW(Set1SplStored), ROW(Set2SplStored), ROW(Set1SplShown), ROW(Set2SplShown),
      ROW(Set1PhaseStored), ROW(Set2PhaseStored), ROW(Set1PhaseShown), ROW(Set2PhaseShown),
      ROW(PhaseCurveCount), ROW(PhaseShiftDeg), ROW(DelayMs), ROW(DelayedCurve), ROW(ProjectModified),
      ROW(ProjectLoaded), ROW(HasProjectPath), ROW(ProjectSaved), ROW(ImpedanceMode), ROW(DataImported),
      ROW(FilterComputed), ROW(AirChanged), ROW(DesignChanged), ROW(DimEditing), ROW(SquarePortSection),
      ROW(BoxSection), ROW(FieldBefore), ROW(FilePath), ROW(ProjectPath), ROW(ProjectTitle), ROW(ImpFileTitle),
      ROW(LastSaveError), ROW(GrafCassaOpen), ROW(GrafFaseOpen), ROW(GrafSplOpen), ROW(GrafSplMaxOpen),
      ROW(GrafEscursioneOpen), ROW(GrafAirspeedOpen),
});
#undef ROW
// clang-format on

}  // namespace

ValueRef FindInRecord(const ProjectState& state, std::string_view name) {
  for (const Row& row : kRows) {
    if (row.name == name) return row.member(state);
  }
  return std::monostate{};
}

}  // namespace zefirondo
