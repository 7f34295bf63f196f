// The rights of an ordinary user for a while: an administrator, as whom some test machines run, may open anything.
#pragma once

#include <unistd.h>

#include <stdexcept>

namespace zefirondo {

class AsNobody {
 public:
  AsNobody() : administrator_(::geteuid() == 0) {
    if (administrator_ && ::setresuid(kNobody, kNobody, 0) != 0) throw std::runtime_error("the user stays the same");
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;
  ~AsNobody() {
    if (administrator_ && ::setresuid(0, 0, 0) != 0) ::_exit(1);
  }

 private:
  static constexpr uid_t kNobody = 65534;
  bool administrator_;
};

}  // namespace zefirondo
