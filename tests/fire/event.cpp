#include "fire/event.h"

#include <system_error>

#include "core/fields.h"
#include "core/text.h"
#include "runner/names.h"
#include "runner/words.h"

namespace zefirondo {
namespace {

const char* Word(Act act) {
  switch (act) {
    case Act::Choose: return "choose ";
    case Act::Focus: return "focus ";
    case Act::Leave: return "leave";
    case Act::Type: return "type ";
    case Act::BackTab: return "# back tab";
    case Act::Set: return "set ";
    case Act::Pick: return "pick ";
    case Act::Click: return "click ";
    case Act::DoubleClick: return "dblclick ";
    case Act::RightClick: return "rightclick ";
    case Act::Tab: return "tab ";
    case Act::Press: return "press ";
    case Act::Release: return "release ";
    case Act::Close: return "close ";
    case Act::Clipboard: return "# clipboard ";
    case Act::LoseFile: return "# lost ";
  }
  return "";
}

/// Control characters are the keys of their names, as a script has them.
std::string TypedText(const std::string& text) {
  std::string shown;
  for (const char c : text) {
    if (c == '\r') {
      shown += "{ENTER}";
    } else if (c == '\t') {
      shown += "{TAB}";
    } else if (c == '\b') {
      shown += "{BACKSPACE}";
    } else {
      shown += c;
    }
  }
  return Quoted(shown);
}

void Type(Program& program, Control& field, const std::string& text) {
  if (!BeginTyping(program, field).Done()) return;
  for (const char32_t character : Characters(text)) {
    if (!PressKey(program, static_cast<int>(character)).Done()) return;
  }
}

}  // namespace

std::string ScriptLine(const Event& event) {
  std::string line = Word(event.act);
  if (event.control != nullptr) line += PrintedName(*event.control);
  if (event.window != nullptr) line += event.window->name;
  switch (event.act) {
    case Act::Type: return line + " " + TypedText(event.text);
    case Act::Set:
    case Act::Pick: return line + " " + Quoted(event.text);
    case Act::Tab: return line + event.text;
    case Act::Clipboard:
    case Act::LoseFile: return line + Quoted(event.text.substr(0, 200));
    case Act::Press: return line + " " + NumberText(event.x) + " " + NumberText(event.y);
    default: return line;
  }
}

void Perform(Program& program, ChancePlatform& platform, const Event& event) {
  std::error_code ignored;
  switch (event.act) {
    case Act::Choose: Choose(program, *event.control); break;
    case Act::Focus: Focus(program, *event.control); break;
    case Act::Leave: Leave(program); break;
    case Act::Type: Type(program, *event.control, event.text); break;
    case Act::BackTab: PressBackTab(program); break;
    case Act::Set: Paste(program, *event.control, event.text); break;
    case Act::Pick: Pick(program, *event.control, event.text); break;
    case Act::Click: Click(program, *event.control); break;
    case Act::DoubleClick: DoubleClick(program, *event.control); break;
    case Act::RightClick: RightClick(program, *event.control); break;
    case Act::Tab: ClickTab(program, event.text); break;
    case Act::Press: PressMouse(program, *event.control, event.x, event.y); break;
    case Act::Release: ReleaseMouse(program, *event.control); break;
    case Act::Close: CloseBox(program, *event.window); break;
    case Act::Clipboard: platform.clipboard = event.text; break;
    case Act::LoseFile: std::filesystem::remove_all(program.folder / event.text, ignored); break;
  }
}

}  // namespace zefirondo
