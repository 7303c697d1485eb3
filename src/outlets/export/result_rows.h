#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "outlets/export/export_row.h"
#include "outlets/export/export_table.h"
#include "outlets/results/result_values.h"
#include "scoring/team/team_round.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {

// The calculated values of a golfer or a team become rows of four tables. A round has one row in
// the first table, a row for each hole in the second one, a row for each key of an array (a
// difference or a number of balls) in the third one, and a row for each hole and key in the fourth
// one. A sum over holes is a column of the first or the third table whose name ends in "_out",
// "_in" or "_total".

void AddResultValue(ExportRow& row, const ResultValue& value);

// Collects the names of the columns. It is a visitor, as result_values.h describes, and reads no
// value.
struct ResultNames {
  std::vector<std::string> of_round;
  std::vector<std::string> of_hole;
  std::vector<std::string> of_key;
  std::vector<std::string> of_hole_and_key;

  template <class ValueOf>
  void Value(const char* name, const ValueOf&) {
    of_round.emplace_back(name);
  }
  template <class ValueOf>
  void Array(const char* name, int count, const ValueOf&) {
    if (count == kTeamNames) {
      for (int i = 0; i < count; ++i) of_round.push_back(name + ("_" + std::to_string(i)));
      return;
    }
    if (count >= kHoles) of_hole.emplace_back(name);
    if (count != kHoles) AddSums(of_round, name);
  }
  template <class ValueOf>
  void Arrays(const char* name, int, int, int count, const ValueOf&) {
    if (count >= kHoles) of_hole_and_key.emplace_back(name);
    AddSums(of_key, name);
  }

  static void AddSums(std::vector<std::string>& names, const std::string& name) {
    for (const char* const part : {"_out", "_in", "_total"}) names.push_back(name + part);
  }
};

// Collects the values of a golfer or a team in the order in which ResultNames collects their names.
// It is a visitor, as result_values.h describes.
class ResultRows {
 public:
  // Contains the values of one row. `has_content` is false if all values are empty, blank or 0.
  struct Part {
    int hole = 0;  // 0: none
    std::optional<int> key{};
    ExportRow values;
    bool has_content = false;

    void Add(const ResultValue& value);
  };

  template <class ValueOf>
  void Value(const char*, const ValueOf& value_of) {
    round_.Add(value_of());
  }
  template <class ValueOf>
  void Array(const char*, int count, const ValueOf& value_of) {
    for (int i = 1; i <= count; ++i) {
      const bool is_hole = count >= kHoles && i <= kHoles;
      (is_hole ? At(holes_, i - 1, i, {}) : round_).Add(value_of(i));
    }
  }
  template <class ValueOf>
  void Arrays(const char*, int first_key, int last_key, int count, const ValueOf& value_of) {
    for (int key = first_key; key <= last_key; ++key) {
      for (int i = 1; i <= count; ++i) {
        const bool is_hole = count >= kHoles && i <= kHoles;
        const int nth = key - first_key;
        (is_hole ? At(holes_and_keys_, nth * kHoles + i - 1, i, key) : At(keys_, nth, 0, key))
            .Add(value_of(key, i));
      }
    }
  }

  const Part& round() const { return round_; }
  const std::vector<Part>& holes() const { return holes_; }
  const std::vector<Part>& keys() const { return keys_; }
  const std::vector<Part>& holes_and_keys() const { return holes_and_keys_; }

 private:
  // Returns the part at a position, counted from 0. Adds it if it is the next one.
  static Part& At(std::vector<Part>& parts, int position, int hole, std::optional<int> key);

  Part round_;
  std::vector<Part> holes_;
  std::vector<Part> keys_;
  std::vector<Part> holes_and_keys_;
};

}  // namespace golf
