#include "cli/script_runner.h"

#include <algorithm>

#include "app/application.h"
#include "core/code_page.h"
#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

int WholeNumber(const std::string& word) {
  const auto number = ReadWholeNumber(word);
  if (!number || *number != static_cast<int>(*number)) {
    throw ScriptError("\"" + word + "\" is no whole number.");
  }
  return static_cast<int>(*number);
}

bool OnOrOff(const std::string& word) {
  if (word == "on") return true;
  if (word == "off") return false;
  throw ScriptError("\"" + word + "\" is neither on nor off.");
}

bool TakesFocus(const Control& control) {
  constexpr ControlKind kPassive[] = {ControlKind::kLabel, ControlKind::kFrame,
                                      ControlKind::kTimer};
  const bool active =
      std::find(std::begin(kPassive), std::end(kPassive), control.kind()) == std::end(kPassive);
  return active && control.IsShown() && control.IsUsable();
}

// Returns the text to store in a cell of this column for the script's `text`. For a drop-down this
// is the item with this text or code. For a check box it is "1" for any number but 0.
std::string CellText(const Grid& grid, int column, const std::string& text) {
  if (grid.cell_type(column) == CellType::kCheckBox) {
    const auto number = ReadLeadingNumber(text);
    if (!number) throw ScriptError("\"" + text + "\" is no tick.");
    return *number != 0 ? "1" : "0";
  }
  if (grid.cell_type(column) != CellType::kDropDown) return text;
  for (const DropDownItem& item : grid.items(column)) {
    if (item.text == text || item.code == text || item.cell == text) return item.CellText();
  }
  throw ScriptError("No item of the cell is \"" + text + "\".");
}

}  // namespace

const ScriptRunner::Verb ScriptRunner::kVerbs[] = {
    {"caller", 1, 1, &ScriptRunner::Caller}, {"open", 1, 2, &ScriptRunner::OpenByName},
    {"click", 1, 1, &ScriptRunner::Click},   {"double-click", 1, 1, &ScriptRunner::DoubleClick},
    {"set", 2, 2, &ScriptRunner::SetText},   {"type", 2, 2, &ScriptRunner::Type},
    {"key", 1, 2, &ScriptRunner::Key},       {"check", 2, 2, &ScriptRunner::Check},
    {"select", 2, 2, &ScriptRunner::Select}, {"pick", 2, 2, &ScriptRunner::Pick},
    {"tab", 2, 2, &ScriptRunner::ChooseTab}, {"row", 2, 2, &ScriptRunner::Row},
    {"cell", 4, 4, &ScriptRunner::Cell},     {"answer", 2, 3, &ScriptRunner::Answer},
    {"show", 0, 1, &ScriptRunner::Show},     {"close", 0, 0, &ScriptRunner::CloseTop},
};

ScriptRunner::ScriptRunner(SharedState& state, HeadlessHost& host, JsonListener& listener,
                           std::istream& lines)
    : state_(state), host_(host), listener_(listener), lines_(lines) {
  host_.drive = [this](Screen& screen) { FollowUntilGone(screen); };
}

void ScriptRunner::Run() {
  try {
    while (FollowNextLine()) {
    }
  } catch (const ScriptError& error) {
    throw ScriptError("Line " + std::to_string(line_) + ": " + error.what());
  }
}

void ScriptRunner::FollowUntilGone(Screen& screen) {
  while (host_.IsShown(screen) && FollowNextLine()) {
  }
}

bool ScriptRunner::FollowNextLine() {
  std::string line;
  if (!std::getline(lines_, line)) {
    FireTimers();  // before the screen closes
    return false;
  }
  if (line_ == 0 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
  listener_.SetLine(++line_);
  const Words words = WordsOf(line);
  if (words.empty()) return true;
  const auto verb = std::find_if(std::begin(kVerbs), std::end(kVerbs),
                                 [&](const Verb& known) { return known.word == words[0]; });
  if (verb == std::end(kVerbs)) throw ScriptError("There is no line \"" + words[0] + "\".");
  const std::size_t given = words.size() - 1;
  if (given < verb->least || given > verb->most) {
    throw ScriptError("\"" + words[0] + "\" has too few or too many words.");
  }
  FireTimers();
  (this->*verb->run)(words);
  if (!host_.bad_answer().empty()) throw ScriptError(host_.bad_answer());
  return true;
}

void ScriptRunner::FireTimers() {
  Screen* top = host_.Top();
  if (top == nullptr) return;
  const auto alive = top->shared_from_this();
  for (Control* control : top->controls()) {
    const auto* timer = dynamic_cast<const Timer*>(control);
    const bool due = timer != nullptr && timer->IsRunning() && timer->on_timer;
    if (due && host_.IsShown(*top)) host_.Operate(*top, timer->on_timer);
  }
}

Screen& ScriptRunner::Top() const {
  if (host_.Top() == nullptr) throw ScriptError("No screen is open.");
  return *host_.Top();
}

Control& ScriptRunner::Named(const std::string& name) const {
  Control* control = Top().FindControl(name);
  if (control == nullptr) throw ScriptError(Top().name() + " has no control " + name + ".");
  return *control;
}

template <class Kind>
Kind& ScriptRunner::Usable(const std::string& name) const {
  Control& control = Named(name);
  auto* kind = dynamic_cast<Kind*>(&control);
  if (kind == nullptr) throw ScriptError("That cannot be done with " + name + ".");
  if (!control.IsShown()) throw ScriptError(name + " is hidden.");
  if (!control.IsUsable()) throw ScriptError(name + " is disabled.");
  return *kind;
}

void ScriptRunner::Caller(const Words& words) { state_.CommandLine = words[1]; }

void ScriptRunner::OpenByName(const Words& words) {
  if (!CanOpenScreen(host_, words[1])) {
    throw ScriptError("There is no screen " + words[1] + ".");
  }
  if (host_.IsShown(words[1])) throw ScriptError(words[1] + " is open already.");
  const std::string word = words.size() > 2 ? words[2] : "";
  host_.Operate([&] { OpenScreen(state_, host_, words[1], word); });
}

void ScriptRunner::Click(const Words& words) {
  Screen& screen = Top();
  auto& control = Usable<Captioned>(words[1]);
  if (!TakesFocus(control)) throw ScriptError("That cannot be done with " + words[1] + ".");
  host_.Operate(screen, [&] {
    screen.MoveFocus(&control);
    if (const auto* button = dynamic_cast<const Button*>(&control)) button->Click();
    if (auto* toggle = dynamic_cast<Toggle*>(&control)) {
      toggle->Choose(toggle->kind() == ControlKind::kOptionButton || !toggle->value());
    }
  });
}

void ScriptRunner::DoubleClick(const Words& words) {
  auto& control = Usable<Control>(words[1]);
  const auto* list = dynamic_cast<const List*>(&control);
  const auto* grid = dynamic_cast<const Grid*>(&control);
  const auto event = list != nullptr   ? list->on_double_click
                     : grid != nullptr ? grid->on_double_click
                                       : nullptr;
  if (!event) throw ScriptError("A double click on " + words[1] + " does nothing.");
  host_.Operate(Top(), event);
}

void ScriptRunner::SetText(const Words& words) {
  Screen& screen = Top();
  auto& box = Usable<TextBox>(words[1]);
  if (box.read_only()) throw ScriptError(words[1] + " can only be read.");
  host_.Operate(screen, [&] {
    screen.MoveFocus(&box);
    box.Enter(words[2]);
    screen.MoveFocus(nullptr);
  });
}

void ScriptRunner::Type(const Words& words) {
  Screen& screen = Top();
  const auto alive = screen.shared_from_this();
  auto& box = Usable<TextBox>(words[1]);
  if (box.read_only()) throw ScriptError(words[1] + " can only be read.");
  host_.Operate(screen, [&] { screen.MoveFocus(&box); });
  for (const char typed : words[2]) {
    if (!host_.IsShown(screen)) throw ScriptError(screen.name() + " is not open any more.");
    const char key = box.key_filter ? box.key_filter(typed) : typed;
    if (key != 0) host_.Operate(screen, [&] { box.TypeKey(key); });
  }
}

void ScriptRunner::Key(const Words& words) {
  Screen& screen = Top();
  const auto alive = screen.shared_from_this();
  if (words.size() > 2) {
    auto& control = Usable<Control>(words[2]);
    host_.Operate(screen, [&] { screen.MoveFocus(&control); });
  }
  host_.Operate(screen, [&] {
    Control* focus = screen.focus();
    if (EqualIgnoringCase(words[1], "Tab")) return FocusNext(screen);
    if (focus != nullptr && focus->on_key && focus->on_key(words[1])) return;
    const auto* button = dynamic_cast<const Button*>(focus);
    const bool pressed = button != nullptr && button->IsShown() && button->IsUsable() &&
                         EqualIgnoringCase(words[1], "Enter");
    if (pressed) return button->Click();
    screen.OnKey(words[1]);
  });
}

void ScriptRunner::FocusNext(Screen& screen) {
  std::vector<Control*> stops;
  std::copy_if(screen.controls().begin(), screen.controls().end(), std::back_inserter(stops),
               [](const Control* control) { return TakesFocus(*control); });
  const auto at = std::find(stops.begin(), stops.end(), screen.focus());
  const bool last = at == stops.end() || at + 1 == stops.end();
  if (!stops.empty()) screen.MoveFocus(last ? stops.front() : *(at + 1));
}

void ScriptRunner::Check(const Words& words) {
  auto& toggle = Usable<Toggle>(words[1]);
  const bool value = OnOrOff(words[2]);
  host_.Operate(Top(), [&] { toggle.Choose(value); });
}

void ScriptRunner::Select(const Words& words) {
  const std::vector<std::string>& items = ItemsOf(words[1]);
  const int index = WholeNumber(words[2]);
  if (index < 0 || index >= static_cast<int>(items.size())) {
    throw ScriptError(words[1] + " has no item " + words[2] + ".");
  }
  SelectItem(words[1], index);
}

void ScriptRunner::Pick(const Words& words) {
  const std::vector<std::string>& items = ItemsOf(words[1]);
  const auto item = std::find_if(items.begin(), items.end(), [&](const std::string& text) {
    return text.find(words[2]) != std::string::npos;
  });
  if (item == items.end()) throw ScriptError("No item of " + words[1] + " holds " + words[2] + ".");
  SelectItem(words[1], static_cast<int>(item - items.begin()));
}

const std::vector<std::string>& ScriptRunner::ItemsOf(const std::string& name) const {
  if (const auto* combo = dynamic_cast<const TextCombo*>(&Named(name))) return combo->items();
  return Usable<List>(name).items();
}

// Selects an item. Selecting from a drop-down with free text also moves the focus to it, as typing
// does.
void ScriptRunner::SelectItem(const std::string& name, int index) {
  Screen& screen = Top();
  auto* combo = dynamic_cast<TextCombo*>(&Usable<Control>(name));
  host_.Operate(screen, [&] {
    if (combo == nullptr) {
      Usable<List>(name).Select(index);
    } else {
      screen.MoveFocus(combo);
      combo->Select(index);
    }
  });
}

void ScriptRunner::ChooseTab(const Words& words) {
  auto& tab = Usable<Tab>(words[1]);
  const int page = WholeNumber(words[2]);
  if (page < 0 || page >= static_cast<int>(tab.pages().size())) {
    throw ScriptError(words[1] + " has no tab " + words[2] + ".");
  }
  host_.Operate(Top(), [&] { tab.Choose(page); });
}

void ScriptRunner::Row(const Words& words) {
  auto& grid = Usable<Grid>(words[1]);
  const int row = WholeNumber(words[2]);
  if (row < 1 || row > grid.rows()) throw ScriptError(words[1] + " has no row " + words[2] + ".");
  host_.Operate(Top(), [&] { grid.SetActiveRow(row); });
}

void ScriptRunner::Cell(const Words& words) {
  auto& grid = Usable<Grid>(words[1]);
  const int row = WholeNumber(words[2]);
  const int column = WholeNumber(words[3]);
  const bool there = row >= 1 && row <= grid.rows() && column >= 0 && column <= grid.columns();
  if (!there) throw ScriptError(words[1] + " has no such cell.");
  if (grid.IsLocked(column, row)) throw ScriptError("The cell is locked.");
  const std::string text = CellText(grid, column, words[4]);
  host_.Operate(Top(), [&] { grid.Enter(column, row, text); });
}

void ScriptRunner::Answer(const Words& words) {
  const bool always = words.size() > 3;
  if (always && words[3] != "always") throw ScriptError("An answer ends with nothing or always.");
  host_.QueueAnswer(words[1], words[2], always);
}

void ScriptRunner::Show(const Words& words) {
  const Screen& screen = Top();
  if (words.size() > 1) return WriteJsonLine(DescribeControl(screen, Named(words[1])));
  for (const Control* control : screen.controls()) {
    if (control->kind() != ControlKind::kTimer) WriteJsonLine(DescribeControl(screen, *control));
  }
}

void ScriptRunner::CloseTop(const Words&) {
  if (!host_.Leave(Top())) throw ScriptError(Top().name() + " cannot be left now.");
}

}  // namespace golf
