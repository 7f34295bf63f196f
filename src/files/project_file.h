// The project file ".pro": a fixed sequence of lines of a key, an equals sign and a value.
//
// The keys are for the human eye. The reader takes the lines one after the other and cuts each at the length of
// the key that must stand there; four places are tested. A missing or added line shifts all that follow.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Opens the project of the command line, or of the open dialog.
void OpenProject(Program& program);

/// Saves to the path of the project, which a dialog asks for the first time; or to a path that is always asked.
void SaveProject(Program& program);
void SaveProjectAs(Program& program);

void ConnectProjectFile(Program& program);

}  // namespace zefirondo
