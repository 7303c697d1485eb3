#pragma once

#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/json_text.h"
#include "core/shared_state.h"

namespace golf {

// Writes a list. As JSON, it writes each entry as a line at once. For people, it writes a table in
// Finish.
class ListWriter {
 public:
  explicit ListWriter(bool json) : json_(json) {}

  void SetHeadings(std::vector<std::string> headings) { headings_ = std::move(headings); }
  // Adds an entry, given in both forms. The cells are UTF-8.
  void Add(const Json& object, std::vector<std::string> cells);
  void Finish() const;

 private:
  bool json_;
  std::vector<std::string> headings_;
  std::vector<std::vector<std::string>> rows_;
};

// Each of these functions lists one kind of entry. They read files and change nothing.
void ListCourses(SharedState& state, const ListRequest& request, ListWriter& out);
void ListRosters(SharedState& state, const ListRequest& request, ListWriter& out);
void ListQuenbyRosters(SharedState& state, const ListRequest& request, ListWriter& out);
void ListTournaments(SharedState& state, const ListRequest& request, ListWriter& out);
void ListZandelLeagues(SharedState& state, const ListRequest& request, ListWriter& out);
void ListEvents(SharedState& state, const ListRequest& request, ListWriter& out);

}  // namespace golf
