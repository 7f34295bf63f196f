// Transducer data: a text of at least 55 lines, read by position alone.
#pragma once

#include "core/program.h"

namespace zefirondo {

/// Asks for a data file and reads it into the sheet, each value as soon as it is read.
void ImportTransducerData(Program& program);

void ConnectTransducerFile(Program& program);

}  // namespace zefirondo
