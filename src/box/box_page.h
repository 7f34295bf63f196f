// The box page of the sheet: entering its tabs, and the fields that the closed and the vented design share.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Takes over a number of transducers, after asking what has to give way.
void SelNumDriver(Program& program);

/// Takes over a typed net volume, on leaving its field.
void VolnettoLostfocus(Program& program);

/// Inserts the tab of a box that was designed, and selects it: key "chi" or "ref".
void InsertBoxPage(Program& program, std::string_view key);

void ConnectBoxPage(Program& program);

}  // namespace zefirondo
