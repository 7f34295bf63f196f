// `frmalfa`: twelve classic vented alignments, as pairs of Vb/Vas and Fb/Fs.
//
// Source: A. N. Thiele, "Loudspeakers in Vented Boxes" (1961), the table of alignments.
#pragma once

#include "core/program.h"

namespace zefirondo {

void ConnectAlignmentChart(Program& program);

}  // namespace zefirondo
