// This file reads and writes the two text files of a layout. Commas separate the values.

#include "scoring/layouts/report_layout.h"

#include <algorithm>
#include <charconv>

#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

class LayoutWriter {
 public:
  LayoutWriter& Text(std::string_view value) { return Value('"' + std::string(value) + '"'); }
  LayoutWriter& Number(int value) { return Value(std::to_string(value)); }
  LayoutWriter& Value(const std::string& value) {
    line_ += (line_.empty() ? "" : ",") + value;
    return *this;
  }
  void EndLine() {
    text_.append(line_).append(kLineEnd);
    line_.clear();
  }
  std::string TextWith(const std::string& behind) const { return text_ + behind; }

 private:
  std::string text_;
  std::string line_;
};

// Reads the values in the order of the format. Reads nothing more after a value of a wrong kind.
class LayoutReader {
 public:
  LayoutReader(std::string text, std::string name)
      : text_(std::move(text)), name_(std::move(name)) {}

  // Reads a text in quotes. The text ends at a quote before a comma or the line end, so it may
  // contain quotes itself.
  LayoutReader& Text(std::string& value) {
    const std::size_t start = BeginValue();
    if (!problem_.empty()) return *this;
    if (start >= line_.size() || line_[start] != '"') return Fail("a text");
    std::size_t end = line_.find('"', start + 1);
    while (end != std::string_view::npos && end + 1 < line_.size() && line_[end + 1] != ',') {
      end = line_.find('"', end + 1);
    }
    if (end == std::string_view::npos) return Fail("the end of a text");
    value = line_.substr(start + 1, end - start - 1);
    next_ = end + 1;
    return *this;
  }

  LayoutReader& Number(int& value) {
    std::string text;
    NumberText(text);
    if (!problem_.empty()) return *this;
    const auto number = ReadWholeNumber(text);
    if (!number || *number != static_cast<int>(*number)) return Fail("a whole number");
    value = static_cast<int>(*number);
    return *this;
  }

  // Reads a number as it is written in the file.
  LayoutReader& NumberText(std::string& value) {
    const std::size_t start = BeginValue();
    if (!problem_.empty()) return *this;
    const std::size_t end = std::min(line_.find(',', start), line_.size());
    const std::string number(Trim(line_.substr(start, end - start)));
    if (number.empty() || number.find_first_not_of("0123456789.-") != std::string::npos) {
      return Fail("a number");
    }
    value = number;
    next_ = end;
    return *this;
  }

  void EndLine() {
    if (problem_.empty() && next_ < line_.size()) Fail("its end");
    at_line_start_ = true;
  }

  std::string Rest() const { return text_.substr(at_); }
  const std::string& problem() const { return problem_; }

 private:
  // Returns the start of the next value in its line. Begins a new line after EndLine.
  std::size_t BeginValue() {
    if (!problem_.empty()) return 0;
    if (at_line_start_) {
      BeginLine();
      return 0;
    }
    if (next_ < line_.size() && line_[next_] == ',') return next_ + 1;
    Fail("another value");
    return 0;
  }

  void BeginLine() {
    at_line_start_ = false;
    next_ = 0;
    ++line_number_;
    if (at_ >= text_.size()) {
      problem_ = name_ + " ends before line " + std::to_string(line_number_) +
                 ": it is cut, or no report layout.";
      return;
    }
    const std::string_view rest = std::string_view(text_).substr(at_);
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    line_ = rest.substr(0, end);
    if (line_.ends_with('\r')) line_.remove_suffix(1);
    at_ = std::min(at_ + end + 1, text_.size());
  }

  LayoutReader& Fail(std::string_view expected) {
    problem_ = name_ + " is no report layout that this program can read: line " +
               std::to_string(line_number_) + " lacks " + std::string(expected) + ".";
    return *this;
  }

  std::string text_;
  std::string name_;
  std::string problem_;
  std::string_view line_;
  std::size_t at_ = 0;    // the start of the next line in the text
  std::size_t next_ = 0;  // the end of the last value in the line
  int line_number_ = 0;
  bool at_line_start_ = true;
};

void ReadFont(LayoutReader& from, ReportFont& font) {
  from.Text(font.name).NumberText(font.size).Number(font.style).EndLine();
}

void WriteFont(LayoutWriter& to, const ReportFont& font) {
  to.Text(font.name).Value(font.size).Number(font.style).EndLine();
}

void ReadFirstFile(LayoutReader& from, ReportLayout& layout) {
  from.Text(layout.ReportDescription).EndLine();
  from.Number(layout.HoleNumberUsed).Number(layout.PlayersPerTeam).EndLine();
  from.Text(layout.BallSelectionOption).Text(layout.BallSelection).EndLine();
  for (auto& hole : layout.places) {
    for (PlaceCodes& place : hole) {
      from.Text(place.ConsiderPlayers).Text(place.GrossScoresToUse).Text(place.NetScoresToUse);
      from.EndLine();
    }
  }
  ReadFont(from, layout.fonts[1]);
  ReadFont(from, layout.fonts[2]);
  from.Number(layout.DisplayHGridLines).Number(layout.DisplayVGridLines).EndLine();
  layout.behind[0] = from.Rest();
}

void ReadSecondFile(LayoutReader& from, ReportLayout& layout) {
  ReadFont(from, layout.fonts[0]);
  for (std::string& text : layout.HeaderText) from.Text(text);
  from.EndLine();
  from.Text(layout.ReportNumber).EndLine();
  for (int& header : layout.Header) {
    from.Number(header);
    from.EndLine();
  }
  for (std::string& text : layout.kept) {
    from.Text(text);
    from.EndLine();
  }
  layout.behind[1] = from.Rest();
}

std::string FirstFile(const ReportLayout& layout) {
  LayoutWriter to;
  to.Text(layout.ReportDescription).EndLine();
  to.Number(layout.HoleNumberUsed).Number(layout.PlayersPerTeam).EndLine();
  to.Text(layout.BallSelectionOption).Text(layout.BallSelection).EndLine();
  for (const auto& hole : layout.places) {
    for (const PlaceCodes& place : hole) {
      to.Text(place.ConsiderPlayers).Text(place.GrossScoresToUse).Text(place.NetScoresToUse);
      to.EndLine();
    }
  }
  WriteFont(to, layout.fonts[1]);
  WriteFont(to, layout.fonts[2]);
  to.Number(layout.DisplayHGridLines).Number(layout.DisplayVGridLines).EndLine();
  return to.TextWith(layout.behind[0]);
}

std::string SecondFile(const ReportLayout& layout) {
  LayoutWriter to;
  WriteFont(to, layout.fonts[0]);
  for (const std::string& text : layout.HeaderText) to.Text(text);
  to.EndLine();
  to.Text(layout.ReportNumber).EndLine();
  for (const int header : layout.Header) to.Number(header).EndLine();
  for (const std::string& text : layout.kept) to.Text(text).EndLine();
  return to.TextWith(layout.behind[1]);
}

std::string PathOf(const std::string& folder, const std::string& name) {
  return folder + name + std::string(kLayoutExtension);
}

std::string BytesOf(FileTable& files, const std::string& path) {
  const auto file = files.gate().Open(path, FileAccess::kReadOnly);
  std::string bytes(static_cast<std::size_t>(file->Length()), '\0');
  bytes.resize(file->ReadAt(0, bytes));
  file->Close();
  return bytes;
}

}  // namespace

ReadLayout ReadReportLayout(FileTable& files, const std::string& path) {
  ReportLayout layout;
  // Reads one file. Returns a description of its fault, or an empty text.
  const auto read_file = [&](char number, void (*values)(LayoutReader&, ReportLayout&)) {
    const std::string file = path + number;
    const std::string name = file.substr(file.find_last_of("/\\") + 1);
    if (!files.FileExists(file)) return "There is no file " + name + ".";
    LayoutReader reader(files.ReadText(file), name);
    values(reader, layout);
    return reader.problem();
  };
  std::string problem = read_file('1', ReadFirstFile);
  if (problem.empty()) problem = read_file('2', ReadSecondFile);
  if (!problem.empty()) return {std::nullopt, problem};
  return {std::move(layout), ""};
}

void WriteReportLayout(FileTable& files, const std::string& path, const ReportLayout& layout) {
  files.gate().ReplaceText(path + '1', FirstFile(layout));
  files.gate().ReplaceText(path + '2', SecondFile(layout));
}

bool FitsReportLayout(std::string_view text) {
  return text.find_first_of("\"\r\n") == std::string_view::npos;
}

std::vector<std::string> ListReportLayouts(FileTable& files, const std::string& folder) {
  const std::string ending = std::string(kLayoutExtension) + "1";
  std::vector<std::string> names = files.FilesLike(folder, "*" + ending);
  for (std::string& name : names) name.resize(name.size() - ending.size());
  return names;
}

bool IsPermanentLayout(std::string_view name) { return name.starts_with('('); }

bool ReportLayoutExists(FileTable& files, const std::string& folder, const std::string& name) {
  return files.FileExists(PathOf(folder, name) + '1');
}

// Reads both files before it writes the first copy. If one of them is missing, nothing is written.
void CopyReportLayout(FileTable& files, const std::string& folder, const std::string& name,
                      const std::string& copy) {
  const std::string first = BytesOf(files, PathOf(folder, name) + '1');
  const std::string second = BytesOf(files, PathOf(folder, name) + '2');
  files.gate().ReplaceText(PathOf(folder, copy) + '1', first);
  files.gate().ReplaceText(PathOf(folder, copy) + '2', second);
}

void DeleteReportLayout(FileTable& files, const std::string& folder, const std::string& name) {
  for (const char part : {'1', '2'}) {
    const std::string path = PathOf(folder, name) + part;
    if (files.FileExists(path)) files.gate().Delete(path);
  }
}

}  // namespace golf
