#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/text.h"
#include "support/bytes.h"

namespace golf {

inline constexpr std::size_t kLeaguePlayerBytes = 8012;

// Zandel's records by their offsets, with a pattern in what is not named.
inline std::string LeagueControl(const std::string& name, int last_substitute, int players,
                                 int event) {
  std::string bytes = Pattern(405);
  PutText(bytes, 2, 40, name);
  Put16(bytes, 82, {last_substitute});
  Put16(bytes, 88, {players, 1, 12, event});
  return bytes;
}

inline std::string LeaguePlayer(int id, const std::string& first, const std::string& last,
                                float handicap = 7.251f, int event = 2) {
  std::string bytes = Pattern(kLeaguePlayerBytes);
  Put(bytes, 4, {id});
  PutText(bytes, 8, 15, first);
  PutText(bytes, 23, 15, last);
  Put16(bytes, 382, {id % 3});
  std::fill_n(bytes.begin() + 870, 100, '\0');  // no scores
  Put(bytes, 1270 + 4 * (static_cast<std::size_t>(event) - 1), {handicap});
  return bytes;
}

inline std::string Joined(const std::vector<std::string>& records) {
  std::string bytes;
  for (const std::string& record : records) bytes += record;
  return bytes;
}

inline std::string RecordAt(const std::string& file, std::size_t record, std::size_t length) {
  return file.substr((record - 1) * length, length);
}

}  // namespace golf
