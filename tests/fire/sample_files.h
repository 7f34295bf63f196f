// What lies on the disk of a person who chooses files at random: good ones of every kind, damaged ones, and places
// where no file can be.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "fire/dice.h"

namespace zefirondo {

class SampleFiles {
 public:
  explicit SampleFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Empties the folder and lays the files out anew.
  void LayOut(Dice& dice);

  /// A path for a dialog that wants this extension: mostly one that makes sense.
  [[nodiscard]] std::filesystem::path Choose(Dice& dice, const std::string& filter) const;

  /// A text as it may stand on the clipboard.
  [[nodiscard]] static std::string ClipboardText(Dice& dice);

  [[nodiscard]] std::filesystem::path RandomProject(Dice& dice) const;
  [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }

 private:
  void Write(const std::string& name, const std::string& bytes);

  std::filesystem::path folder_;
  std::vector<std::string> names_;
};

}  // namespace zefirondo
