// The commands that ask: what they print.
#include <algorithm>
#include <array>
#include <type_traits>
#include <variant>

#include "core/text.h"
#include "runner/names.h"
#include "runner/running_script.h"
#include "runner/script_error.h"

namespace zefirondo {
namespace {

std::string Flag(bool flag) { return flag ? "-1" : "0"; }

std::string ValueText(const std::string& name, const ValueRef& value) {
  return std::visit(
      [&](const auto& pointer) -> std::string {
        using T = std::remove_cvref_t<decltype(pointer)>;
        if constexpr (std::is_same_v<T, const double*> || std::is_same_v<T, const float*>) {
          return NumberText(static_cast<double>(*pointer));
        } else if constexpr (std::is_same_v<T, const bool*>) {
          return Flag(*pointer);
        } else if constexpr (std::is_same_v<T, const std::string*>) {
          return Quoted(*pointer);
        } else if constexpr (std::is_same_v<T, const std::int16_t*> || std::is_same_v<T, const std::int32_t*>) {
          return std::to_string(*pointer);
        } else {
          throw ScriptError(name + " is a curve");
        }
      },
      value);
}

std::string ColourText(int colour) {
  switch (colour) {
    case colour::kWindow: return "window";
    case colour::kText: return "text";
    case colour::kFace: return "face";
    default: return std::to_string(colour);
  }
}

/// One line of what went to the printer.
struct PageLineText {
  std::string operator()(const PageText& item) const {
    return "text " + NumberText(item.x) + " " + NumberText(item.y) + " " + Quoted(item.text) +
           (item.tab != 0 ? " tab=" + std::to_string(item.tab) : "");
  }
  std::string operator()(const PageLine& item) const { return "line " + Corners(item.x1, item.y1, item.x2, item.y2); }
  std::string operator()(const PageBox& item) const { return "box " + Corners(item.x1, item.y1, item.x2, item.y2); }
  std::string operator()(const PagePicture& item) const {
    return "picture " + Corners(item.x, item.y, item.width, item.height) + " " + item.source;
  }

  static std::string Corners(double a, double b, double c, double d) {
    return NumberText(a) + " " + NumberText(b) + " " + NumberText(c) + " " + NumberText(d);
  }
};

}  // namespace

void Script::AskGet(Words words) {
  for (const std::string& name : words) {
    const Named named = FindName(program_, name);
    std::string value;
    if (named.window != nullptr) {
      value = Quoted(named.window->caption);
    } else if (named.control != nullptr) {
      const bool ticks = named.control->kind == ControlKind::CheckBox || named.control->kind == ControlKind::Option;
      value = ticks ? Flag(named.control->checked) : Quoted(*named.control->text);
    } else if (!named.tab.empty()) {
      throw ScriptError(name + " is a tab");
    } else {
      value = ValueText(name, named.value);
    }
    Print(name + " = " + value);
  }
}

void Script::AskLook(Words words) {
  const auto bit = [](bool flag) { return flag ? "1" : "0"; };
  for (const std::string& name : words) {
    const Control& control = FindControl(program_, name);
    if (control.IsMenu()) {
      Print(name + " enabled=" + bit(control.enabled) + " checked=" + bit(control.checked));
      continue;
    }
    Print(name + " enabled=" + bit(control.enabled) + " visible=" + bit(control.visible) +
          " locked=" + bit(control.locked) + " back=" + ColourText(control.back) + " fore=" + ColourText(control.fore));
  }
}

void Script::AskList(Words words) {
  const Control& control = FindControl(program_, words[0]);
  if (control.kind != ControlKind::ComboBox) throw ScriptError(words[0] + " has no list");
  std::string line = words[0] + ":";
  for (const std::string& item : control.list) line += " " + Quoted(item);
  Print(line);
}

void Script::AskCaption(Words words) {
  for (const std::string& name : words) {
    const Named named = FindName(program_, name);
    std::string caption;
    std::string tip;
    if (named.window != nullptr) {
      caption = named.window->caption;
    } else if (named.control != nullptr) {
      caption = named.control->IsField() ? named.control->label : *named.control->text;
      tip = named.control->tip;
    } else if (!named.tab.empty()) {
      const std::vector<TabStripItem>& tabs = program_.windows.frmthsm.tabs;
      caption = std::find_if(tabs.begin(), tabs.end(), [&](const auto& tab) { return tab.key == named.tab; })->caption;
    } else {
      throw ScriptError(name + " has no caption");
    }
    Print(name + " caption=" + Quoted(caption) + " tip=" + Quoted(tip));
  }
}

void Script::AskPlace(Words words) {
  for (const std::string& name : words) {
    const Named named = FindName(program_, name);
    if (named.window != nullptr) {
      Print(name + " left=" + NumberText(named.window->left) + " top=" + NumberText(named.window->top));
    } else if (named.control != nullptr) {
      Print(name + " left=" + NumberText(named.control->left) + " top=" + NumberText(named.control->top) +
            " width=" + NumberText(named.control->width));
    } else {
      throw ScriptError(name + " has no place");
    }
  }
}

void Script::AskTabs(Words) {
  const Sheet& sheet = program_.windows.frmthsm;
  std::string line = "tabs";
  for (const TabStripItem& tab : sheet.tabs) line += " " + tab.key;
  Print(line + " selected=" + sheet.selected_tab);
}

void Script::AskWindows(Words) {
  std::string line = "windows";
  for (const Window* const window : program_.order) {
    line += " " + std::string(window->name) + (window->hidden ? "(hidden)" : "");
  }
  Print(line);
}

void Script::AskFocused(Words) {
  Print("focused " + (program_.focus != nullptr ? PrintedName(*program_.focus) : "none"));
}

void Script::AskCurve(Words words) {
  const Named named = FindName(program_, words[0]);
  const auto* const pointer = std::get_if<const Curve*>(&named.value);
  if (pointer == nullptr) throw ScriptError(words[0] + " is no curve");
  const Curve& curve = **pointer;
  Print(words[0] + " upper=" + std::to_string(static_cast<long long>(curve.size()) - 1));
  if (curve.empty()) return;
  const double upper = static_cast<double>(curve.size() - 1);
  const double first = words.size() > 1 ? ReadIndex(words[1]) : 0.0;
  const double last = words.size() > 2 ? ReadIndex(words[2]) : (words.size() > 1 ? first : upper);
  const double end = std::min(last, upper);
  if (first > end) return;
  for (auto index = static_cast<std::size_t>(first); index <= static_cast<std::size_t>(end); ++index) {
    Print(words[0] + "(" + std::to_string(index) + ") = " + NumberText(curve[index]));
  }
}

void Script::AskSurface(Words words) {
  const Control& plot = Plot(words[0]);
  const Surface& surface = *plot.surface;
  Print("surface " + words[0] + " left=" + NumberText(surface.scale.left) +
        " width=" + NumberText(surface.scale.width) + " height=" + NumberText(surface.scale.height));
  for (const Stroke& stroke : surface.strokes) {
    for (std::size_t i = stroke.first; i + 1 < stroke.first + stroke.count; ++i) {
      const Point& a = surface.points[i];
      const Point& b = surface.points[i + 1];
      Print("line " + NumberText(a.x) + " " + NumberText(a.y) + " " + NumberText(b.x) + " " + NumberText(b.y) + " " +
            std::to_string(stroke.colour));
    }
  }
  for (const StripLabel& label : surface.labels) Print("label " + Quoted(label.text) + " " + NumberText(label.at));
  if (plot.readout != nullptr && plot.readout->visible) Print("readout " + Quoted(*plot.readout->text));
}

void Script::AskStore(Words) {
  for (const auto& [key, value] : platform_.store) Print(key + " = " + Quoted(value));
}

void Script::AskPages(Words) {
  int number = 0;
  for (const Page& page : platform_.pages) {
    Print("page " + std::to_string(++number) + (page.landscape ? " landscape" : " portrait"));
    for (const PageItem& item : page.items) Print(std::visit(PageLineText{}, item));
    if (page.last) Print("end");
  }
}

void Script::AskEcho(Words words) { Print(words.empty() ? "echo" : "echo " + Joined(words)); }

}  // namespace zefirondo
