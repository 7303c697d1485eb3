#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "core/code_page.h"
#include "forms/control.h"
#include "forms/screen.h"

namespace golf {

// Keeps its keys in the order in which they are added.
using Json = nlohmann::ordered_json;

// Converts a text from code page 1252.
inline Json JsonText(std::string_view text) { return Utf8FromText(text); }

// Returns the shortest number that converts to this single-precision value. Returns null for NaN
// and the infinities.
Json JsonSingle(float value);

// Returns an object as text in one line.
std::string JsonLine(const Json& object);
// Appends a text that is in code page 1252.
void AppendJsonText(std::string& to, std::string_view text);

// Writes one object as a line of standard output and flushes it.
void WriteJsonLine(const Json& object);
// Writes an object whose last key is an array. `each_element` calls its argument with each element
// of the array. The elements are written one by one, since there may be many. The
// object must have at least one key.
using EachElement = std::function<void(const std::function<void(const Json&)>&)>;
void WriteJsonLine(const Json& object, std::string_view key, const EachElement& each_element);

// Returns the event "control", which describes a control and what it shows.
Json DescribeControl(const Screen& screen, const Control& control);

}  // namespace golf
