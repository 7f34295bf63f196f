// A script run in a folder of its own, for the tests of what each command refuses, holds, queues and prints.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "runner/script.h"
#include "support/desk.h"

namespace zefirondo {

using Lines = std::vector<std::string>;

inline const std::string kNew = "start\nchoose mdithsm.mnuinsmanuale\n";
inline const std::string kDesign =
    kNew +
    "set txtpotenza 100\nset txtimpedenza 8\nset txtsensibilita 90\nset txtxmax 5\n"
    "tab par\nset txtfs 35\nset txtrvc 5.6\nset txtqmesin 4.2\nset txtbl 9.5\nset txtd 210\n"
    "set txtqes 0.45\nset txtqts 0.41\nset txtmms 0.038\n"
    "tab dim\nset txtforo 230\nset txtprof 110\nset txtlagmagne 140\nset txtprofmag 50\n"
    "set txtesterno 260\nset txtspesbordo 8\nset txtdiambob 38\nfocus txtvolume\n"
    "tab par\nanswer yes\nclick cmdcalcola\n";
inline const std::string kZero = R"(message stop "Error" "Please enter a non zero value" [OK] -> OK)";

class Contract : public testing::Test {
 protected:
  ScriptResult Try(const std::string& script, Language language = Language::English) {
    ScriptOptions options;
    options.folder = folder.path();
    options.language = language;
    options.today = {20, 11, 2026};
    return RunScript(script, options);
  }

  Lines Run(const std::string& script) {
    const ScriptResult result = Try(script);
    EXPECT_EQ(result.error, "");
    return Split(result.out);
  }

  /// What a designed project prints behind the proposal of its box.
  Lines RunDesigned(const std::string& script) {
    Lines lines = Run(kDesign + script);
    if (!lines.empty()) lines.erase(lines.begin());
    return lines;
  }

  static Lines Split(const std::string& out) {
    Lines lines;
    for (std::size_t at = 0; at < out.size();) {
      const std::size_t end = out.find('\n', at);
      lines.push_back(out.substr(at, end - at));
      at = end + 1;
    }
    return lines;
  }

  TemporaryFolder folder;
};

}  // namespace zefirondo
