#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "core/code_page.h"
#include "forms/control.h"
#include "forms/screen.h"

namespace golf {

// Its keys keep the order in which they are added.
using Json = nlohmann::ordered_json;

// Converts a text from code page 1252.
inline Json JsonText(std::string_view text) { return Utf8FromText(text); }

// Returns the shortest number that identifies a single among singles. Null for NaN and the
// infinities.
Json JsonSingle(float value);

// Writes one object as a line of standard output and flushes it.
void WriteJsonLine(const Json& object);

// Describes a control and all that it shows as the event "control".
Json DescribeControl(const Screen& screen, const Control& control);

}  // namespace golf
