#include "core/file_name.h"

#include <algorithm>

#include "core/text.h"

namespace golf {
namespace {

constexpr std::string_view kRefused = "\\/:*?\"<>|";

// Windows reserves these names for devices, with any extension.
constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$", "CLOCK$"};
// Each of these texts with one digit after it is also a device name.
constexpr std::string_view kNumberedDevices[] = {"COM", "LPT"};
// The last three are superscript digits.
constexpr std::string_view kDeviceDigits = "0123456789\xB9\xB2\xB3";

bool IsRefused(char c) {
  return static_cast<unsigned char>(c) < ' ' || kRefused.find(c) != std::string_view::npos;
}

bool IsDevice(std::string_view name) {
  const auto is = [name](std::string_view device) { return name == device; };
  if (std::any_of(std::begin(kDevices), std::end(kDevices), is)) return true;
  return std::any_of(std::begin(kNumberedDevices), std::end(kNumberedDevices),
                     [name](std::string_view device) {
                       return name.size() == device.size() + 1 && name.starts_with(device) &&
                              kDeviceDigits.find(name.back()) != std::string_view::npos;
                     });
}

}  // namespace

std::string FileNameFault(std::string_view name) {
  if (std::any_of(name.begin(), name.end(), IsRefused)) {
    std::string fault = "cannot hold any of the characters";
    for (const char c : kRefused) fault.append(1, ' ').append(1, c);
    return fault;
  }
  const std::string stem = UpperCase(TrimRight(name.substr(0, name.find('.'))));
  return IsDevice(stem) ? "cannot be " + stem + ", which Windows keeps for a device" : "";
}

}  // namespace golf
