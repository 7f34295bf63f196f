// The box response window: the computed curve, its two stored traces, and what is laid over them.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Draws the box graph anew: grid, computed curve, the stored traces that are shown. Opens the window if it is
/// not open, and brings it before the sheet, which goes behind it.
void RidisegnaCassa(Program& program);

/// Clears the box plot, and draws the grid and the computed curve.
void DrawPlainBox(Program& program);

/// Drops a sum that no longer matches the box curve: its arrays, and the buttons that made it.
void DropBoxSum(Program& program);

/// Clears the flags of both stored traces, and hides and unticks their check boxes.
void ForgetBoxTraces(Program& program);

/// Opens or closes the controls that calibrate an imported response.
void EnableCalibration(Program& program, bool enabled);

void ConnectBoxResponse(Program& program);

}  // namespace zefirondo
