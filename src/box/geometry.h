// From the gross volume of the box to its inner dimensions: a prism, or a trapezoid that is narrower behind.
#pragma once

#include <optional>
#include <string>

#include "core/program.h"

namespace zefirondo {

/// Fills the prism from `txtboxvolume` and `cmbrappo`; each new volume returns the box to the prism.
void DimensioniBox(Program& program);

/// Shows the prism: picture, controls, text.
void FormaPrismatica(Program& program);

/// Shows the picture of the trapezoid and opens its controls.
void ShowTrapezoid(Program& program);

/// Shows the picture that belongs to `txtld`: a rear side makes a trapezoid.
void ShowBoxShape(Program& program);

/// The depth in cm of a trapezoid with the plan area `area` in cm² and the front `width` in cm, whose side walls
/// lean inward by `degrees` each: the smaller root of P² tan − P L + S = 0. Nothing when the tilt is too large.
/// Throws `RunTimeError` for a tilt of 0.
[[nodiscard]] std::optional<double> TrapezoidDepth(double area, double width, double degrees);

/// The same, with the message; −1 when the tilt is too large.
[[nodiscard]] double ProfonditaTrapezio(Program& program, double area, double width, double degrees);

/// Three dimensions as parts of the cube root of the volume, rounded to one decimal, joined by two blanks.
[[nodiscard]] std::string Proporzioni(double volume, double a, double b, double c);

/// Shows a dimension in cm, rounded to one decimal.
void ShowDimension(Program& program, Control& field, double centimetres);

void ConnectGeometry(Program& program);

}  // namespace zefirondo
