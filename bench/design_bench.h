// A designed vented box for the benchmarks, with a platform that says nothing.
#pragma once

#include <memory>
#include <string>

#include "core/program.h"
#include "runner/queued_platform.h"

namespace zefirondo {

struct BenchDesk {
  std::string out;
  QueuedPlatform platform{out, {20, 11, 2026}, 1920};
  Program program{platform, Language::English, "/nonexistent"};

  BenchDesk();
  void DesignVented();
};

}  // namespace zefirondo
