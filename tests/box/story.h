// A made-up woofer and what a builder does with its box, by chance, on the sheet and in a second writing of the design.
#pragma once

#include <memory>
#include <string>

#include "box/designs.h"
#include "box/plain_design.h"
#include "fire/dice.h"

namespace zefirondo {

/// How the parameters of a woofer reach the sheet.
enum class Source { Mechanics, MechanicsWithVas, Impedance };

class Story {
 public:
  explicit Story(std::uint64_t seed) : dice_(seed) {}

  void Tell();

 private:
  void InventWoofer();
  void Compute();
  void ChooseBox();
  void ChangeSomething();
  void ChangeClosedBox();
  void ChangeVentedBox();
  void ChangeEitherBox();
  void ChangeShape();
  void TypeDimensions();
  void ChangeDrivers();
  void ChangeAir();

  void Compare();
  void CompareTexts();
  void CompareNumbers();
  void CompareFlags();
  void CompareCurve();

  /// A field gets a text and is left.
  void Enter(const char* field, const std::string& text);
  void Pick(const char* combo, const std::string& text);
  double Near(double value) { return value * dice_.Between(0.7, 1.4); }

  Dice dice_;
  std::unique_ptr<BoxDesk> desk_ = std::make_unique<BoxDesk>();
  plain::Design plain_;
  Source source_ = Source::Mechanics;
  std::string told_;
};

}  // namespace zefirondo
