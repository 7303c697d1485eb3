#include "cli/json_text.h"

#include <iostream>

namespace golf {
namespace {

std::string_view NameOf(ControlKind kind) {
  constexpr std::string_view kNames[] = {"label",  "text",  "check", "option", "list", "combo",
                                         "button", "frame", "tab",   "grid",   "timer"};
  return kNames[static_cast<std::size_t>(kind)];
}

Json TextList(const std::vector<std::string>& texts) {
  Json list = Json::array();
  for (const std::string& text : texts) list.push_back(JsonText(text));
  return list;
}

Json GridRows(const Grid& grid) {
  Json rows = Json::array();
  for (int row = 1; row <= grid.rows(); ++row) {
    Json cells = Json::array();
    for (int column = 0; column <= grid.columns(); ++column) {
      cells.push_back(JsonText(grid.text(column, row)));
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

void AddKindKeys(Json& event, const Control& control) {
  if (const auto* captioned = dynamic_cast<const Captioned*>(&control)) {
    event["text"] = JsonText(captioned->caption());
  }
  if (const auto* toggle = dynamic_cast<const Toggle*>(&control)) {
    event["value"] = toggle->value() ? 1 : 0;
  } else if (const auto* combo = dynamic_cast<const TextCombo*>(&control)) {
    event["text"] = JsonText(combo->text());
    event["index"] = combo->index();
    event["items"] = TextList(combo->items());
  } else if (const auto* text_box = dynamic_cast<const TextBox*>(&control)) {
    event["text"] = JsonText(text_box->text());
  } else if (const auto* list = dynamic_cast<const List*>(&control)) {
    event["text"] = JsonText(list->text());
    event["index"] = list->index();
    event["items"] = TextList(list->items());
  } else if (const auto* tab = dynamic_cast<const Tab*>(&control)) {
    event["index"] = tab->page();
    event["items"] = TextList(tab->pages());
  } else if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
    event["rows"] = GridRows(*grid);
    event["row"] = grid->active_row();
  }
}

}  // namespace

void WriteJsonLine(const Json& object) {
  std::cout << object.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

Json DescribeControl(const Screen& screen, const Control& control) {
  const auto* button = dynamic_cast<const Button*>(&control);
  Json event = {{"event", "control"},
                {"screen", screen.name()},
                {"name", screen.ScriptName(control)},
                {"kind", NameOf(control.kind())},
                {"visible", control.IsShown()},
                {"enabled", control.IsUsable()},
                {"default", button != nullptr && button->is_default()},
                {"cancel", button != nullptr && button->is_cancel()},
                {"focus", screen.focus() == &control},
                {"tag", JsonText(control.tag())}};
  AddKindKeys(event, control);
  return event;
}

}  // namespace golf
