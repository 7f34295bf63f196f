#include "box/volumes.h"

#include "box/geometry.h"
#include "core/numbers.h"
#include "core/window_life.h"
#include "response/box_response.h"

namespace zefirondo {
namespace {

constexpr double kFreeAirGamma = 1.400823478;

}  // namespace

double ApparentVolume(const ProjectState& state, double volume) {
  return Finite(Divide(volume, state.Pressure * state.Kinternal) * kFreeAirGamma * state.Pressure);
}

void SumBoxVolume(Program& program) {
  const ProjectState& s = program.state;
  const double litres = ReadNumber(s.txtvoloccu) + ReadNumber(s.txtvolnetto) + ReadNumber(s.txtingombro);
  AssignNumber(program, program.windows.frmthsm.txtboxvolume, litres);
  DimensioniBox(program);
}

void SumVolumes(Program& program) {
  const ProjectState& s = program.state;
  AssignNumber(program, program.windows.frmthsm.txtvoloccu, s.DriversNum * ReadNumber(s.txtvolume));
  SumBoxVolume(program);
}

void CloseDesignChange(Program& program) {
  DropBoxSum(program);
  ChiudiGrafici(program);
  MarkModified(program);
}

}  // namespace zefirondo
