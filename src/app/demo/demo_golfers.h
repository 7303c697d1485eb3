#pragma once

#include <span>
#include <string_view>

namespace golf {

// Describes a golfer of the demonstration data.
struct DemoGolfer {
  int id;
  std::string_view first;
  std::string_view last;
  bool lady;
  float index;
  float handicap;
  char flight;
};

std::span<const DemoGolfer> DemoMembers();     // golfers who play 18 holes
std::span<const DemoGolfer> DemoNineHolers();  // golfers who play 9 holes
std::span<const DemoGolfer> DemoGuests();      // golfers who are only in Quenby

}  // namespace golf
