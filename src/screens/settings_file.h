#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/shared_state.h"

namespace golf {

// Builds the text of a settings file. The file has one value a line and no names; texts are in
// double quotes.
class SettingsWriter {
 public:
  void Number(int value) { Word(std::to_string(value)); }
  void Text(const std::string& value) { Word('"' + value + '"'); }
  void Word(const std::string& value) { text_.append(value).append("\r\n"); }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

// Reads the values of a settings file in their order. Each call consumes the next value. It returns
// nothing if that value has another type or if no value is left.
class SettingsReader {
 public:
  explicit SettingsReader(std::string text) : text_(std::move(text)) {}

  std::optional<int> Number();
  std::optional<std::string> Text();
  std::optional<std::string> Word();  // a whole line that does not begin with a quote

 private:
  bool IsQuoted() const { return at_ < text_.size() && text_[at_] == '"'; }
  std::optional<std::string> QuotedText();
  std::string_view RestOfLine();

  std::string text_;
  std::size_t at_ = 0;
};

// These read and write a settings file. ReadSettingsFile returns no values if
// state.remembers_settings is off or the file is missing or unreadable. WriteSettingsFile replaces
// the file and raises the errors of ChangeGate::ReplaceText. It does nothing if
// state.remembers_settings is off.
SettingsReader ReadSettingsFile(SharedState& state, const std::string& path);
void WriteSettingsFile(SharedState& state, const std::string& path, const SettingsWriter& values);

}  // namespace golf
