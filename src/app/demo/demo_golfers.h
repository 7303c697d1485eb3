#pragma once

#include <span>
#include <string_view>

namespace golf {

// A member of the made-up club, as both Kelvane and Quenby know him.
struct DemoGolfer {
  int id;
  std::string_view first;
  std::string_view last;
  bool lady;
  float index;
  float handicap;
  char flight;
};

std::span<const DemoGolfer> DemoMembers();     // who play eighteen holes
std::span<const DemoGolfer> DemoNineHolers();  // who play nine
std::span<const DemoGolfer> DemoGuests();      // whom Quenby alone knows

}  // namespace golf
