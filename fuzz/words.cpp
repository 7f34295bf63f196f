// The lines of a script: words in quotes and without, which stay the same when they are quoted and split again.
#include <sstream>

#include "fuzz_file.h"
#include "runner/script_error.h"
#include "runner/words.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zefirondo;
  std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
  for (std::string line; std::getline(script, line);) {
    try {
      const std::vector<std::string> words = SplitWords(line);
      std::string again;
      for (const std::string& word : words) again += Quoted(word) + " ";
      if (SplitWords(again) != words) std::abort();
    } catch (const ScriptError&) {
    }
  }
  return 0;
}
