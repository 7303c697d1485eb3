#pragma once

#include <variant>

#include "cli/json_text.h"
#include "scoring/round_results.h"

namespace golf {

// Holds a member function and the JSON key of its value.
template <class Member>
struct Named {
  const char* name;
  Member member;
};

inline Json AsJson(const std::string& text) { return JsonText(text); }
inline Json AsJson(std::int32_t number) { return number; }
inline Json AsJson(const TextOrNumber& value) {
  return std::visit([](const auto& held) { return AsJson(held); }, value);
}

// Returns an array of the values for the indexes 1 to `last`.
template <class ValueOf>
Json Array(int last, ValueOf value_of) {
  Json array = Json::array();
  for (int i = 1; i <= last; ++i) array.push_back(AsJson(value_of(i)));
  return array;
}

}  // namespace golf
