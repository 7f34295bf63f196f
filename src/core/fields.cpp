#include "core/fields.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/focus.h"
#include "core/numbers.h"
#include "core/text.h"

namespace zefirondo {
namespace {

constexpr std::string_view kSheet = "frmthsm";
using enum KeyFilter;
using enum OnFocus;
using enum LeavingTest;
using enum ZeroText;

// clang-format off
constexpr auto kFieldRules = std::to_array<FieldRules>({
    {kSheet, "txtproduttore", AnyKey, SelectAll},
    {kSheet, "txtmarca", AnyKey, SelectAll},
    {kSheet, "txtmodello", AnyKey, SelectAll},
    {kSheet, "txtdatifor", AnyKey, SelectAll},
    {kSheet, "txtdatacreaz", AnyKey, SelectAll},
    {kSheet, "txtcommento", AnyKey, SelectAll},
    {kSheet, "txtpotenza", Number, SelectAll, NonZero},
    {kSheet, "txtimpedenza", Number, SelectAll, NonZero},
    {kSheet, "txtsensibilita", Number, SelectAll, NonZero},
    {kSheet, "txthg", Number, SelectAll, LeavingTest::NoTest, GiveBack},
    {kSheet, "txtxmax", Number, SelectAll, NonZero},
    {kSheet, "txtrendimento", Number, SelectAll, LeavingTest::NoTest, GiveBack},
    {kSheet, "txtle", Number, SelectAll, LeavingTest::NoTest, GiveBack},
    {kSheet, "cmbnumvc", Number},

    // `txtzmax` looks at `txtxmax` for the leading 0, which is wanted.
    {kSheet, "txtzmax", Number, SelectAll, NonZeroUnlessReadOnly, Allowed, "txtfs", "txtxmax"},
    {kSheet, "txtfs", Number, SelectAll, NonZero, Allowed, "txtrvc"},
    {kSheet, "txtrvc", Number, SelectAll, NonZero, Allowed, "txtqmesin"},
    {kSheet, "txtqmesin", Number, SelectAll, NonZero},
    {kSheet, "txtbl", Number, SelectAll, NonZero},
    {kSheet, "txtd", Number, SelectAll},
    {kSheet, "txtsd", Number, SelectAll, NonZeroSdOrD},
    {kSheet, "txtqes", Number, SelectAllUnlessReadOnly, NonZeroUnlessReadOnly, Allowed, "txtqts"},
    {kSheet, "txtqts", Number, SelectAllUnlessReadOnly, NonZeroUnlessReadOnly, Allowed, "txtmms"},
    {kSheet, "txtmms", Number, SelectAllUnlessReadOnly, NonZeroUnlessReadOnly, Allowed, "txtvas"},
    {kSheet, "txtvas", Number, SelectAllUnlessReadOnly, NonZero, Allowed, "txtfs"},

    {kSheet, "txtforo", Number, SelectAll, NonZero, GiveBack},
    {kSheet, "txtprof", Number, SelectAll, NonZero, GiveBack},
    {kSheet, "txtlagmagne", Number, SelectAll, NonZero, GiveBack},
    {kSheet, "txtprofmag", Number, SelectAll, NonZero, GiveBack},
    {kSheet, "txtesterno", Number, SelectAll, NonZero, GiveBack},
    {kSheet, "txtspesbordo", Number, SelectAll, NonZero, GiveBack},
    {kSheet, "txtdiambob", Number, SelectAll, NonZero, GiveBack},

    {kSheet, "cmbnumdriver", Number},
    {kSheet, "txtvolnetto", Number, SelectAllRemember},
    {kSheet, "txtingombro", NumberLoose, SelectAllRemember},
    {kSheet, "cmbk", Number},
    {kSheet, "cmballi", Number, Remember},
    {kSheet, "cmbql", Number, Remember},
    {kSheet, "txtl", Number},
    {kSheet, "txth", Number},
    {kSheet, "txtp", Number, Remember},
    {kSheet, "txtld", Number, SelectAll, LeavingTest::NoTest, GiveBack},
    {kSheet, "cmbgradi", Number, Nothing, LeavingTest::NoTest, Stay},
    {kSheet, "cmbnumcond", Number},
    {kSheet, "txtlungmis", Number, SelectAllRemember, LeavingTest::NoTest, Stay},
    {kSheet, "txtlungappa", Number},
    {kSheet, "cmbDoa", Number, RememberUnlessEmpty, LeavingTest::NoTest, Stay},
    {kSheet, "txtb", Number, SelectAllRemember, LeavingTest::NoTest, Stay},
    {kSheet, "txtareasez", Number},

    {kSheet, "txttemperatura", Number, SelectAll, LeavingTest::NoTest, GiveBack},
    {kSheet, "txtpressione", Number, SelectAll, LeavingTest::NoTest, GiveBack},

    {"frmgrafcassa", "txtdbcal", SignedNumber, SelectAll},
    {"frmopzioni", "txtrs", Number, SelectAll, NonZero},
    {"frmopzioni", "txtspessore", Integer, SelectAll, NonZero},
    {"frmvalc", "txtf1", Number, SelectAll, NonZeroIfFilled},
    {"frmvalc", "txtf2", Number, SelectAll, NonZeroIfFilled},
    {"frmvalf", "txtf1", Number, SelectAll, NonZeroIfFilled},
    {"frmvalf", "txtf2", Number, SelectAll, NonZeroIfFilled},
    {"frmsplMax", "txtpot", AppliedPower, SelectAll, NonZero, Allowed, "cmdcalc"},
    {"frmescursione", "txtpot", AppliedPower, SelectAll, NonZero, Allowed, "cmdcalc"},
    {"frmairspeed", "txtpot", AppliedPower, SelectAll, NonZero, Allowed, "cmdcalc"},
    {"frmfiltri", "cmbgain", Gain},
    {"frmfiltri", "cmbQ", Number},
    {"frmfiltri", "txtft", Number, SelectAll, NoTest, GiveBack},
    {"frmfiltri", "txtFinf", Number, SelectAll, NoTest, GiveBack},
    {"frmfasecompl", "txtfrequenza", Number, SelectAll, NonZeroIfFilled},
    {"frmsommadelay", "txtfase1", AnyKey, SelectAll, NonZeroIfFilled},
    {"frmsommadelay", "txtfase2", Number, SelectAll, NonZeroIfFilled},
    {"frmdimensioni", "txtLmanual", Number, SelectAll, NonZero},
    {"frmdimensioni", "txtHmanual", Number, SelectAll, NonZero},
    {"frmdimensioni", "txtPmanual", Number, SelectAll, NonZero},
});
// clang-format on

constexpr std::array<std::string_view, 5> kEnterIsTab{"txtproduttore", "txtmarca", "txtmodello", "txtdatifor",
                                                      "txtdatacreaz"};

bool IsDigitKey(int k) { return k >= '0' && k <= '9'; }

/// The rejected character still reaches the field; a queued backspace takes it away again.
bool Reject(Program& program, Control& collapsed, int message) {
  program.ErrorMessage(program.Text(message));
  collapsed.selection_length = 0;
  program.keys.push_back(key::kBackspace);
  return true;
}

void PassFocusByEnter(Program& program, const Control& field) {
  const Sheet& sheet = program.windows.frmthsm;
  std::string_view target = field.rules->enter_to;
  if (&field == &sheet.txtrvc && sheet.txtqmesin.locked) target = sheet.txtbw.name;
  if (target.empty()) {
    program.keys.push_back(key::kTab);
  } else {
    MoveFocus(program, field.window->Find(target));
  }
}

bool AllFilled(std::span<const std::string* const> texts) {
  return std::none_of(texts.begin(), texts.end(), [](const std::string* text) { return text->empty(); });
}

}  // namespace

void ConnectFieldRules(Program& program) {
  for (const FieldRules& rules : kFieldRules) {
    Window* const window = program.FindWindow(rules.window);
    if (window == nullptr) continue;
    if (Control* const control = window->Find(rules.control)) control->rules = &rules;
  }
}

bool FilterKey(Program& program, Control& field, int k) {
  const bool enter_moves_on = std::find(kEnterIsTab.begin(), kEnterIsTab.end(), field.name) != kEnterIsTab.end();
  if (k == key::kEnter && enter_moves_on) {
    program.keys.push_back(key::kTab);
    return false;
  }
  if (field.rules == nullptr || field.rules->filter == KeyFilter::AnyKey) return true;

  const FieldRules& rules = *field.rules;
  const bool strict = rules.filter == Number || rules.filter == Integer || rules.filter == Gain;
  Control& zero = rules.leading_zero_of.empty() ? field : *field.window->Find(rules.leading_zero_of);
  const bool after_leading_zero = *zero.text == "0" && k != '.' && k != key::kBackspace;
  if (strict && after_leading_zero) return Reject(program, zero, 114);
  if (rules.filter == AppliedPower && after_leading_zero) {  // it warns, and the key goes on through the rules: wanted
    program.ErrorMessage(program.Text(114));
    field.selection_start = field.selection_length = 0;
  }
  if (IsDigitKey(k) || k == key::kBackspace) return true;
  if (k == '-' && (rules.filter == SignedNumber || rules.filter == Gain)) return true;
  if (k == key::kEnter) {
    PassFocusByEnter(program, field);
    return false;
  }
  const int warning = rules.filter == Integer ? 160 : 114;
  if (k == ',' && rules.filter != Integer) {
    program.keys.push_back(key::kBackspace);
    program.keys.push_back('.');
    return true;
  }
  if (k == '.' && !HasPoint(*field.text)) return true;
  if (rules.filter == AppliedPower) field.selection_start = 0;
  return Reject(program, field, warning);
}

void RunGotFocusRules(Program& program, Control& field) {
  if (field.rules == nullptr) return;
  const OnFocus action = field.rules->on_focus;
  const bool selects =
      action == SelectAll || action == SelectAllRemember || (action == SelectAllUnlessReadOnly && !field.locked);
  if (selects && !field.text->empty()) {
    field.selection_start = 0;
    field.selection_length = CharacterCount(TrimBlanks(*field.text));
  }
  if (action == SelectAllRemember || action == Remember || (action == RememberUnlessEmpty && !field.text->empty())) {
    program.state.FieldBefore = *field.text;
  }
}

bool RunLeavingTest(Program& program, Control& field) {
  if (field.rules == nullptr) return true;
  const ProjectState& state = program.state;
  bool holds = field.rules->zero == Stay && *field.text == "0";
  switch (field.rules->test) {
    case LeavingTest::NoTest: break;
    case NonZero: holds = holds || ReadNumber(*field.text) == 0.0; break;
    case NonZeroIfFilled: holds = holds || (!field.text->empty() && ReadNumber(*field.text) == 0.0); break;
    case NonZeroUnlessReadOnly: holds = holds || (!field.locked && ReadNumber(*field.text) == 0.0); break;
    case NonZeroSdOrD: holds = holds || (ReadNumber(state.txtsd) == 0.0 && ReadNumber(state.txtd) == 0.0); break;
  }
  if (holds) program.ErrorMessage(program.Text(125));
  return !holds;
}

bool RunLeftTest(Program& program, Control& field) {
  if (field.rules == nullptr || field.rules->zero != GiveBack || *field.text != "0") return true;
  program.ErrorMessage(program.Text(125));
  return false;
}

void TestImpedanceRule(Program& program) {
  const ProjectState& s = program.state;
  const std::array filled{&s.txtzmax, &s.txtfs, &s.txtrvc, &s.txtqmesin, &s.txtbl};
  if (s.ImpedanceMode && AllFilled(filled) && !(s.txtd.empty() && s.txtsd.empty())) {
    program.windows.frmthsm.cmdcalcola.enabled = true;
  }
}

void TestParametersRule(Program& program) {
  const ProjectState& s = program.state;
  const std::array filled{&s.txtfs, &s.txtrvc, &s.txtqmesin, &s.txtbl, &s.txtqes, &s.txtqts, &s.txtmms};
  if (!s.ImpedanceMode && AllFilled(filled) && !(s.txtd.empty() && s.txtsd.empty())) {
    program.windows.frmthsm.cmdcalcola.enabled = true;
  }
}

}  // namespace zefirondo
