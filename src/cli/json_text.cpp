#include "cli/json_text.h"

#include <algorithm>
#include <cmath>
#include <iostream>

#include "outlets/field_values.h"

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

// Escapes U+007F to U+009F, which a terminal would interpret. The library escapes only the control
// characters below U+0020. In JSON these characters occur only inside texts.
std::string WithoutControls(const std::string& json) {
  constexpr char kDelete = '\x7F';
  constexpr char kLead = '\xC2';  // the first UTF-8 byte of U+0080 to U+00BF
  std::string escaped;
  escaped.reserve(json.size());
  const auto escape = [&escaped](char last) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(last);
    escaped.append("\\u00").append(1, kDigits[code >> 4]).append(1, kDigits[code & 15]);
  };
  for (std::size_t i = 0; i < json.size(); ++i) {
    const bool control = json[i] == kLead && static_cast<unsigned char>(json[i + 1]) < 0xA0;
    if (control || json[i] == kDelete) {
      escape(json[control ? ++i : i]);
    } else {
      escaped += json[i];
    }
  }
  return escaped;
}

// Returns true if the text stands in JSON as it is.
bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

}  // namespace

std::string JsonLine(const Json& object) {
  return WithoutControls(object.dump(-1, ' ', false, Json::error_handler_t::replace));
}

void AppendJsonText(std::string& to, std::string_view text) {
  if (!IsPlain(text)) {
    to += JsonLine(JsonText(text));
    return;
  }
  to += '"';
  to += text;
  to += '"';
}

Json JsonSingle(float value) {
  return std::isfinite(value) ? Json(NumberOfSingle(value)) : Json(nullptr);
}

void WriteJsonLine(const Json& object) { std::cout << JsonLine(object) << std::endl; }

void WriteJsonLine(const Json& object, std::string_view key, const EachElement& each_element) {
  std::string line = JsonLine(object);
  line.pop_back();  // the brace at the end
  std::cout << line << ",\"" << key << "\":[";
  std::string_view separator;
  each_element([&separator](const Json& element) {
    std::cout << separator << JsonLine(element);
    separator = ",";
  });
  std::cout << "]}" << std::endl;
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
