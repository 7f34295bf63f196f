// Opening, closing, hiding and ordering windows, by reference or by name.
#pragma once

#include <string_view>

#include "core/program.h"

namespace zefirondo {

/// Opens a window, or brings it to the front when it is open: its design, its load routine, the order of
/// windows, its activation.
void OpenWindow(Program& program, Window& window);
void OpenWindow(Program& program, std::string_view name);

/// Opens a window if it is not open; an open one stays as and where it is.
void LoadWindow(Program& program, Window& window);

/// Closes a window. False when it is not open or refuses.
bool CloseWindow(Program& program, Window& window);
bool CloseWindow(Program& program, std::string_view name);

/// Puts a window before all others, and runs its activation if it was not the active one. A hidden window stays
/// hidden, and is not activated.
void BringToFront(Program& program, Window& window);

/// Puts a window behind all others but the frame.
void SendToBack(Program& program, Window& window);

/// Hides the graph windows whose open flags are set, and shows them again, the box response among them.
void NascondiGrafici(Program& program);
void MostraGrafici(Program& program);

/// Closes the graphs that no longer match a changed design: excursion, SPL, maximum SPL and phase.
void ChiudiGrafici(Program& program);

/// The window whose menu bar stands in the frame.
[[nodiscard]] Window& MenuBarWindow(Program& program);

}  // namespace zefirondo
