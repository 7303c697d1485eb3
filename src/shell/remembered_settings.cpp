#include "shell/remembered_settings.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "core/resume_next.h"
#include "forms/grid.h"

namespace golf {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr int kGridColumn = 2;
constexpr int kFirstGridRow = 2;  // row 1 is not the operator's choice

std::string PathOf(const SharedState& state, const Screen& screen) {
  return state.StoreDataPath + screen.name() + ".DAT";
}

class SettingsWriter {
 public:
  void Number(int value) { Line(std::to_string(value)); }
  void Text(const std::string& value) { Line('"' + value + '"'); }
  const std::string& text() const { return text_; }

 private:
  void Line(const std::string& value) { text_.append(value).append(kLineEnd); }

  std::string text_;
};

// Each call takes the next value, whatever it is; nothing where it is not what was asked for.
class SettingsReader {
 public:
  explicit SettingsReader(std::string text) : text_(std::move(text)) {}

  std::optional<int> Number() {
    if (IsQuoted()) return QuotedText(), std::nullopt;
    const std::string_view line = RestOfLine();
    int value = 0;
    const auto read = std::from_chars(line.data(), line.data() + line.size(), value);
    const bool whole = read.ec == std::errc() && read.ptr == line.data() + line.size();
    return whole ? std::optional(value) : std::nullopt;
  }

  std::optional<std::string> Text() {
    if (IsQuoted()) return QuotedText();
    RestOfLine();
    return std::nullopt;
  }

 private:
  bool IsQuoted() const { return at_ < text_.size() && text_[at_] == '"'; }

  // The text runs to the next quote, over line ends if need be. Behind it the line must end.
  std::optional<std::string> QuotedText() {
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

  std::string_view RestOfLine() {
    const std::string_view rest = std::string_view(text_).substr(at_);
    const std::size_t end = std::min(rest.find_first_of(kLineEnd), rest.size());
    const bool pair = rest.substr(end).starts_with(kLineEnd);
    at_ = std::min(at_ + end + (pair ? 2 : 1), text_.size());
    return rest.substr(0, end);
  }

  std::string text_;
  std::size_t at_ = 0;
};

void Write(const Control& control, SettingsWriter& to) {
  if (const auto* toggle = dynamic_cast<const Toggle*>(&control)) to.Number(toggle->value());
  if (const auto* list = dynamic_cast<const List*>(&control)) to.Number(list->index());
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) to.Text(box->text());
  if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
    for (int row = kFirstGridRow; row <= grid->rows(); ++row) to.Text(grid->text(kGridColumn, row));
  }
}

bool CellTakes(const Grid& grid, const std::string& text) {
  return grid.cell_type(kGridColumn) != CellType::kCheckBox || text == "0" || text == "1";
}

void Read(Control& control, SettingsReader& from) {
  if (auto* toggle = dynamic_cast<Toggle*>(&control)) {
    const auto value = from.Number();
    if (value == 0 || value == 1) toggle->SetValue(*value == 1);
  }
  if (auto* list = dynamic_cast<List*>(&control)) {
    if (const auto index = from.Number()) list->Select(*index);
  }
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    if (auto text = from.Text()) box->SetText(std::move(*text));
  }
  if (auto* grid = dynamic_cast<Grid*>(&control)) {
    for (int row = kFirstGridRow; row <= grid->rows(); ++row) {
      const auto text = from.Text();
      if (text && CellTakes(*grid, *text)) grid->SetText(kGridColumn, row, *text);
    }
  }
}

}  // namespace

void WriteSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls) {
  if (!state.remembers_settings) return;
  SettingsWriter writer;
  for (const Control* control : controls) Write(*control, writer);
  state.files.gate().ReplaceText(PathOf(state, screen), writer.text());
}

void ReadSettings(SharedState& state, const Screen& screen, std::span<Control* const> controls) {
  if (!state.remembers_settings) return;
  std::string text;
  const ResumeNext silently(nullptr);
  silently([&] { text = state.files.ReadText(PathOf(state, screen)); });
  SettingsReader reader(std::move(text));
  for (Control* control : controls) {
    silently([&] { Read(*control, reader); });
  }
}

}  // namespace golf
