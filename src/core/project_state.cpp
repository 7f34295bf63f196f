#include "core/project_state.h"

#include "core/numbers.h"

namespace zefirondo {

double TransducerFs(const ProjectState& state) { return state.Fs != 0.0 ? state.Fs : ReadNumber(state.txtfs); }

double TransducerZmax(const ProjectState& state) { return state.Zmax != 0.0 ? state.Zmax : ReadNumber(state.txtzmax); }

double TotalVas(const ProjectState& state) { return Finite(state.DriversNum * state.Vas); }

}  // namespace zefirondo
