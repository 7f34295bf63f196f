// Why a line of a script cannot be run.
#pragma once

#include <stdexcept>

namespace zefirondo {

class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace zefirondo
