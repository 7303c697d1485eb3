#include "cli/results_json.h"

#include <charconv>
#include <iostream>
#include <limits>

#include "outlets/results/player_values.h"
#include "outlets/results/team_values.h"

namespace golf {
namespace {

void AppendWhole(std::string& to, std::int32_t number) {
  char digits[std::numeric_limits<std::int32_t>::digits10 + 2];
  to.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}

void AppendValue(std::string& to, const ResultValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return AppendJsonText(to, *text);
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return AppendWhole(to, *whole);
  const auto* single = std::get_if<float>(&value);
  to += JsonLine(single != nullptr ? JsonSingle(*single) : Json(std::get<double>(value)));
}

// Appends each value to the text of an object.
struct TextVisitor {
  std::string& text;

  void Key(std::string_view name) { text.append(",\"").append(name).append("\":"); }

  template <class ValueOf>
  void Elements(int count, ValueOf value_of) {
    for (int i = 1; i <= count; ++i) {
      text += i == 1 ? '[' : ',';
      AppendValue(text, value_of(i));
    }
    text += ']';
  }

  template <class ValueOf>
  void Value(const char* name, ValueOf value_of) {
    Key(name);
    AppendValue(text, value_of());
  }

  template <class ValueOf>
  void Array(const char* name, int count, ValueOf value_of) {
    Key(name);
    Elements(count, value_of);
  }

  template <class ValueOf>
  void Arrays(const char* name, int first_key, int last_key, int count, ValueOf value_of) {
    Key(name);
    for (int key = first_key; key <= last_key; ++key) {
      text += key == first_key ? "{\"" : ",\"";
      AppendWhole(text, key);
      text += "\":";
      Elements(count, [&](int i) { return value_of(key, i); });
    }
    text += '}';
  }
};

}  // namespace

ResultsObject::ResultsObject(const Json& first_keys) : text_(JsonLine(first_keys)) {
  text_.pop_back();
}

void ResultsObject::AddResults(PlayerClass& player, bool decimals, int round) {
  TextVisitor visitor{text_};
  VisitPlayerValues(&player, decimals, round, visitor);
}

void ResultsObject::AddResults(TeamClass& team, int round) {
  TextVisitor visitor{text_};
  VisitTeamValues(&team, round, visitor);
}

void ResultsObject::Add(const Json& keys) {
  if (keys.empty()) return;
  const std::string object = JsonLine(keys);
  text_ += ',';
  text_.append(object, 1, object.size() - 2);  // without its braces
}

void ResultsObject::Write() const { std::cout << text_ << '}' << std::endl; }

}  // namespace golf
