// The rules of the numeric fields: which keys they take, what getting and losing the focus does to them.
#pragma once

#include <string_view>

#include "core/program.h"

namespace zefirondo {

/// Keys that are no characters of their own.
namespace key {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
}  // namespace key

enum class KeyFilter {
  AnyKey,
  Number,        // digits and one point; a comma becomes a point; nothing may follow a leading 0 but a point
  NumberLoose,   // the same, without the rule of the leading 0
  SignedNumber,  // the loose one, with a minus sign
  Gain,          // the strict one, with a minus sign
  AppliedPower,  // the strict one, whose first rule only warns
  Integer,       // the strict one, where a comma is rejected and the warning asks for an integer
};

enum class OnFocus {
  Nothing,
  SelectAll,
  SelectAllRemember,  // `FieldBefore` takes the text too
  SelectAllUnlessReadOnly,
  Remember,
  RememberUnlessEmpty,
};

enum class LeavingTest {
  NoTest,
  NonZero,  // the reading must not be 0; an empty field counts as 0
  NonZeroUnlessReadOnly,
  NonZeroIfFilled,  // an empty field may be left
  NonZeroSdOrD,     // one of `txtsd` and `txtd` must read as non-zero
};

enum class ZeroText {
  Allowed,
  Stay,      // the text "0" keeps the focus in the field
  GiveBack,  // the focus leaves, and is given back when the text is "0"
};

struct FieldRules {
  std::string_view window;
  std::string_view control;
  KeyFilter filter = KeyFilter::AnyKey;
  OnFocus on_focus = OnFocus::Nothing;
  LeavingTest test = LeavingTest::NoTest;
  ZeroText zero = ZeroText::Allowed;
  std::string_view enter_to = {};         // where Enter leads; a Tab when empty
  std::string_view leading_zero_of = {};  // the field whose text "0" stops digits; the field itself when empty
};

/// Ties the rules to their fields.
void ConnectFieldRules(Program& program);

/// Runs the key filter of the focused field on a key, before the character reaches it. False stops the key:
/// it was used up. Messages are shown and keystrokes queued as the rules say.
bool FilterKey(Program& program, Control& field, int key);

/// Selects and remembers as the field does on getting the focus.
void RunGotFocusRules(Program& program, Control& field);

/// The test before the focus leaves; shows its message and gives false when the focus has to stay.
bool RunLeavingTest(Program& program, Control& field);

/// The test after the focus has left; shows its message and gives false when the focus goes back.
bool RunLeftTest(Program& program, Control& field);

/// Enables `cmdcalcola` when the fields of this kind of project are filled; never disables it.
void TestImpedanceRule(Program& program);
void TestParametersRule(Program& program);

}  // namespace zefirondo
