#include "response/reference_level.h"

#include "core/numbers.h"

namespace zefirondo {

DriverInputs GatherDriver(const ProjectState& state) {
  return {TransducerFs(state), state.Vas, ReadNumber(state.txtqes)};
}

double ReferenceLevel(const ProjectState& state, double fs, double vas, double qes) {
  const double velocity_cubed = state.Velocity * state.Velocity * state.Velocity;
  const double efficiency = Divide(4 * (kPi * kPi), velocity_cubed) * (fs * fs * fs) * Divide(vas, qes);
  const double half_space = 10 * Log10(1 / kTwoPi);
  const double hearing = 10 * Log10(Divide(2e-5 * 2e-5, state.roo * state.Velocity * 1e-12));
  return 10 * Log10(efficiency) + (half_space + 120) - hearing;
}

double WiringGain(const ProjectState& state) {
  return state.WooferWiring == "series" ? 0.0 : 20 * Log10(state.DriversNum);
}

}  // namespace zefirondo
