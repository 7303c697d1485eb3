#include "screens/settings_file.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/resume_next.h"

namespace golf {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

std::optional<int> SettingsReader::Number() {
  const auto word = Word();
  if (!word) return std::nullopt;
  const auto number = ReadWholeNumber(*word);
  if (!number || *number != static_cast<int>(*number)) return std::nullopt;
  return static_cast<int>(*number);
}

std::optional<std::string> SettingsReader::Text() {
  if (IsQuoted()) return QuotedText();
  RestOfLine();
  return std::nullopt;
}

std::optional<std::string> SettingsReader::Word() {
  if (IsQuoted()) return QuotedText(), std::nullopt;
  if (at_ == text_.size()) return std::nullopt;
  return std::string(RestOfLine());
}

// Reads a text in quotes, which may contain line ends. Returns nothing if the closing quote is
// missing or is not the last character of its line.
std::optional<std::string> SettingsReader::QuotedText() {
  const std::size_t end = text_.find('"', at_ + 1);
  if (end == std::string::npos) {
    at_ = text_.size();
    return std::nullopt;
  }
  std::string text = text_.substr(at_ + 1, end - at_ - 1);
  at_ = end + 1;
  if (!RestOfLine().empty()) return std::nullopt;
  return text;
}

std::string_view SettingsReader::RestOfLine() {
  const std::string_view rest = std::string_view(text_).substr(at_);
  const std::size_t end = std::min(rest.find_first_of(kLineEnd), rest.size());
  const bool pair = rest.substr(end).starts_with(kLineEnd);
  at_ = std::min(at_ + end + (pair ? 2 : 1), text_.size());
  return rest.substr(0, end);
}

SettingsReader ReadSettingsFile(SharedState& state, const std::string& path) {
  std::string text;
  const ResumeNext silently(nullptr);
  if (state.remembers_settings) silently([&] { text = state.files.ReadText(path); });
  return SettingsReader(std::move(text));
}

void WriteSettingsFile(SharedState& state, const std::string& path, const SettingsWriter& values) {
  if (state.remembers_settings) state.files.gate().ReplaceText(path, values.text());
}

}  // namespace golf
