// The life of the program and of a project: start, new project, reset, undo, leaving, closing.
#pragma once

#include <string>

#include "core/program.h"

namespace zefirondo {

/// Start-up: captions, defaults, the project of the command line, the width of the screen, the association of
/// ".pro" with the program.
void StartProgram(Program& program, const std::string& command_line);

/// Ties project files to the program in the system's configuration store, at every start.
void AssociaFile(Program& program);

/// Makes the sheet ready for an impedance project, or for entered parameters.
void Set_Caselle_importazione(Program& program);
void Set_Caselle_inserimento(Program& program);

/// Locks or opens the fields of the transducer, with the two undo entries.
void LockTransducerFields(Program& program);
void UnlockTransducerFields(Program& program);

/// Empties a project. It is no new project: the kind of fields stays, as do the pages "gen", "dim" and "imp".
void ResetSheet(Program& program);

void UndoDataImport(Program& program);
void UndoImpedanceImport(Program& program);

/// Puts the model of the transducer into the captions of the page frames.
void ShowModelName(Program& program);

void ConnectShell(Program& program);

}  // namespace zefirondo
