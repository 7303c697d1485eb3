#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "core/code_page.h"
#include "forms/control.h"
#include "forms/screen.h"

namespace golf {

// Keys keep the order in which they are written.
using Json = nlohmann::ordered_json;

// A text of the system as JSON.
inline Json JsonText(std::string_view text) { return Utf8FromText(text); }

// A single as the shortest number that names it among singles; null for one that is none.
Json JsonSingle(float value);

// Writes one object as a line of standard output, at once.
void WriteJsonLine(const Json& object);

// All that can be told of a control, as the event "control".
Json DescribeControl(const Screen& screen, const Control& control);

}  // namespace golf
