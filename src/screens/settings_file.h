#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/shared_state.h"

namespace golf {

// The text of a settings file: a value a line, texts in double quotes, no names.
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
// nothing if that value is of another kind or if none is left.
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

// The settings file `path`, if state.remembers_settings is on. Reading gives no values if it is off
// or the file is missing or unreadable. Writing replaces the file, with the errors of
// ChangeGate::ReplaceText, or does nothing if it is off.
SettingsReader ReadSettingsFile(SharedState& state, const std::string& path);
void WriteSettingsFile(SharedState& state, const std::string& path, const SettingsWriter& values);

}  // namespace golf
