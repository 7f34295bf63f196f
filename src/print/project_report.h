// The project on one A4 page: the response, the box and its ports, and all data of the transducer.
#pragma once

#include <string>

#include "core/program.h"
#include "print/page.h"

namespace zefirondo {

/// The page of the project with this name, from the texts that the sheet holds. Throws `RunTimeError` for a box graph
/// without a scale.
[[nodiscard]] Page ReportPage(Program& program, const std::string& name);

/// Asks for a name if there is none, and for the printer, and prints.
void PrintProject(Program& program);

void ConnectReport(Program& program);

}  // namespace zefirondo
