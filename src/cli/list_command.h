#pragma once

#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/json_text.h"
#include "core/shared_state.h"

namespace golf {

// Where a list goes: a line of JSON for each entry at once, or a table for people at the end.
class ListWriter {
 public:
  explicit ListWriter(bool json) : json_(json) {}

  void SetHeadings(std::vector<std::string> headings) { headings_ = std::move(headings); }
  // The same entry in both forms; the cells are UTF-8.
  void Add(const Json& object, std::vector<std::string> cells);
  void Finish() const;

 private:
  bool json_;
  std::vector<std::string> headings_;
  std::vector<std::vector<std::string>> rows_;
};

// Each lists one kind of thing; files are only read.
void ListCourses(SharedState& state, const ListRequest& request, ListWriter& out);
void ListRosters(SharedState& state, const ListRequest& request, ListWriter& out);
void ListQuenbyRosters(SharedState& state, const ListRequest& request, ListWriter& out);
void ListTournaments(SharedState& state, const ListRequest& request, ListWriter& out);
void ListZandelLeagues(SharedState& state, const ListRequest& request, ListWriter& out);
void ListEvents(SharedState& state, const ListRequest& request, ListWriter& out);

}  // namespace golf
