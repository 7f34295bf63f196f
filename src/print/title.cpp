#include "print/title.h"

#include "core/text.h"

namespace zefirondo {

std::string WithoutExtension(const std::string& title) {
  constexpr std::size_t kExtension = 4;
  const std::size_t count = CharacterCount(title);
  return count <= kExtension ? std::string() : title.substr(0, ByteOffset(title, count - kExtension));
}

}  // namespace zefirondo
