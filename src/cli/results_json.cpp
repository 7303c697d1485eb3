#include "cli/results_json.h"

#include "outlets/results/player_values.h"
#include "outlets/results/team_values.h"

namespace golf {
namespace {

Json AsJson(const ResultValue& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return JsonText(*text);
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
  if (const auto* single = std::get_if<float>(&value)) return JsonSingle(*single);
  return std::get<double>(value);
}

template <class ValueOf>
Json ArrayOf(int count, ValueOf value_of) {
  Json::array_t array;
  array.reserve(static_cast<std::size_t>(count));
  for (int i = 1; i <= count; ++i) array.push_back(AsJson(value_of(i)));
  return array;
}

// Adds each value to an object.
struct JsonVisitor {
  Json& object;

  template <class ValueOf>
  void Value(const char* name, ValueOf value_of) {
    object[name] = AsJson(value_of());
  }

  template <class ValueOf>
  void Array(const char* name, int count, ValueOf value_of) {
    object[name] = ArrayOf(count, value_of);
  }

  template <class ValueOf>
  void Arrays(const char* name, int first_key, int last_key, int count, ValueOf value_of) {
    Json& arrays = object[name] = Json::object();
    for (int key = first_key; key <= last_key; ++key) {
      arrays[std::to_string(key)] = ArrayOf(count, [&](int i) { return value_of(key, i); });
    }
  }
};

}  // namespace

void AddResults(PlayerClass& player, bool decimals, int round, Json& object) {
  JsonVisitor visitor{object};
  VisitPlayerValues(&player, decimals, round, visitor);
}

void AddResults(TeamClass& team, int round, Json& object) {
  JsonVisitor visitor{object};
  VisitTeamValues(&team, round, visitor);
}

}  // namespace golf
