#pragma once

#include <string>

#include "cli/json_text.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"

namespace golf {

// Builds the text of an object with the results of a player or a team. An object has some thousand
// values, and a tree of them would take longer than their calculation.
class ResultsObject {
 public:
  // Begins with these keys. There must be at least one.
  explicit ResultsObject(const Json& first_keys);

  // These add every calculated value for a round: of the player's current entry, or of the current
  // team. The key of a value is the name of its member function. They raise the errors of the
  // calculation.
  void AddResults(PlayerClass& player, bool decimals, int round);
  void AddResults(TeamClass& team, int round);

  // Adds the keys of an object.
  void Add(const Json& keys);

  // Writes the object as a line of standard output and flushes it.
  void Write() const;

 private:
  std::string text_;  // without the brace at the end
};

}  // namespace golf
