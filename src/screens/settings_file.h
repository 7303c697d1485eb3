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

// Each call takes the next value, whatever it is; nothing where it is not what was asked for, or
// where none is left.
class SettingsReader {
 public:
  explicit SettingsReader(std::string text) : text_(std::move(text)) {}

  std::optional<int> Number();
  std::optional<std::string> Text();
  std::optional<std::string> Word();  // a line that begins with no quote, as it stands

 private:
  bool IsQuoted() const { return at_ < text_.size() && text_[at_] == '"'; }
  std::optional<std::string> QuotedText();
  std::string_view RestOfLine();

  std::string text_;
  std::size_t at_ = 0;
};

// Where nothing is remembered, a file that is missing or cannot be read gives no values, and none
// is written. Writing replaces the file; errors as ChangeGate::ReplaceText.
SettingsReader ReadSettingsFile(SharedState& state, const std::string& path);
void WriteSettingsFile(SharedState& state, const std::string& path, const SettingsWriter& values);

}  // namespace golf
