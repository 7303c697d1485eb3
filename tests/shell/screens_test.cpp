// Compares what each screen shows when it opens with the file screens.txt: the texts of its
// controls in their order, which controls are hidden, disabled or read-only, and which buttons
// Enter and Escape press.

#include <algorithm>
#include <fstream>

#include "app/demo/demo_install.h"
#include "core/code_page.h"
#include "core/new_target.h"
#include "core/text.h"
#include "screens/about.h"
#include "support/test_host.h"

namespace golf {
namespace {

// Returns the marks of all columns: "h" for a hidden column, the number of its rows that are not
// locked, or "." for a visible column whose rows are all locked. A centred column also has a "c", a
// column of values a "v", and a column of plus handicaps a "p".
std::string MarksOf(const Grid& grid) {
  std::string marks;
  for (int column = 0; column <= grid.columns(); ++column) {
    int open = 0;
    for (int row = 1; row <= grid.rows(); ++row) open += grid.IsLocked(column, row) ? 0 : 1;
    if (grid.IsCentred(column)) marks += "c";
    if (grid.sort_kind(column) != SortKind::kText) {
      marks += grid.sort_kind(column) == SortKind::kValue ? "v" : "p";
    }
    marks += grid.IsHidden(column) ? "h" : open == 0 ? "." : "";
    if (open > 0) marks += std::to_string(open);
  }
  return marks;
}

// Returns the mark of a control: "h" if it is hidden, "d" if it is disabled, "r" if it is
// read-only, "E" or "X" for the button of Enter or Escape, and "." otherwise. A grid has the marks
// of its columns.
std::string MarksOf(const Control& control) {
  if (!control.visible()) return "h";
  if (!control.enabled()) return "d";
  if (const auto* grid = dynamic_cast<const Grid*>(&control)) return MarksOf(*grid);
  const auto* text = dynamic_cast<const TextBox*>(&control);
  if (text != nullptr && text->read_only()) return "r";
  const auto* button = dynamic_cast<const Button*>(&control);
  if (button == nullptr) return ".";
  return button->is_default() ? "E" : button->is_cancel() ? "X" : ".";
}

// Returns the texts of a control: its caption or text, the items of a list with the number of the
// chosen one, or the headings and the first rows of a grid without its hidden columns.
std::string TextOf(const Control& control) {
  if (const auto* captioned = dynamic_cast<const Captioned*>(&control)) return captioned->caption();
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) return text->text();
  std::string texts;
  if (const auto* list = dynamic_cast<const List*>(&control)) {
    for (const std::string& item : list->items()) texts += item + "; ";
    if (!texts.empty()) texts += std::to_string(list->index());
  }
  if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
    constexpr int kMostRows = 10;
    for (int row = 0; row <= std::min(grid->rows(), kMostRows); ++row) {
      for (int column = 0; column <= grid->columns(); ++column) {
        if (grid->IsHidden(column)) continue;
        texts += (row == 0 ? grid->heading(column) : grid->text(column, row)) + "; ";
      }
      texts += "// ";
    }
    texts += std::to_string(grid->rows()) + " rows";
  }
  return texts;
}

// Returns a heading, and a line for each control. Controls whose names differ only in a number
// share a line. Several blanks count as one.
std::string LinesOf(const Screen& screen) {
  std::vector<std::string> names;
  std::map<std::string, std::string> marks, texts;
  for (const Control* control : screen.controls()) {
    const std::string name = control->name().substr(0, control->name().find('('));
    if (!marks.contains(name)) names.push_back(name);
    marks[name] += MarksOf(*control);
    texts[name] += (texts[name].empty() ? "" : "|") + TextOf(*control);
  }
  std::string lines = screen.name() + ": " + screen.caption() + "\n";
  for (const std::string& name : names) {
    std::string& text = texts[name];
    std::replace(text.begin(), text.end(), '\r', ' ');
    std::replace(text.begin(), text.end(), '\n', ' ');
    text.erase(
        std::unique(text.begin(), text.end(), [](char a, char b) { return a == ' ' && b == ' '; }),
        text.end());
    lines.append(TrimRight("  " + name + " " + marks[name] + " " + text)).append("\n");
  }
  return lines;
}

TEST(ScreensTest, ShowTheTextsAndMarksOfTheFile) {
  const std::pair<const char*, const char*> kOpened[] = {
      {"TransferMenu", ""},     {"RecentFolders", ""},
      {"LoadRoster", ""},       {"LoadRoster", "OPENONLY"},
      {"LoadRosters", ""},      {"CourseTable", "KV"},
      {"Results", ""},          {"TeamResults", ""},
      {"TeamLayouts", ""},      {"KVCoursestoQB", ""},
      {"KVtoQB", ""},           {"KVtoZD", ""},
      {"QBtoKV", ""},           {"ZDtoKV", ""},
      {"ZDtoQB", ""},           {"TransferHistory", ""},
      {"CheckData", ""},        {"ExportData", ""},
      {"DeletedCourses", "QB"}, {"About", ""}};
  const std::map<std::string, const char*> kPressed = {{"CourseTable", "EditCourseButton"},
                                                       {"CourseForm", "EditTeeButton"},
                                                       {"TeamResults", "SortButton"},
                                                       {"TeamLayouts", "NewButton"},
                                                       {"KVCoursestoQB", "PreviewButton"}};
  TestInstall install(false);
  MakeDemoInstall(install.state());
  std::string folder = install.state().ProgramPath;
  std::replace(folder.begin(), folder.end(), '\\', '/');  // the file has "/" for every system
  const std::string beside = folder.substr(0, folder.rfind('/', folder.size() - 2) + 1);
  std::string temporary = TextFromUtf8(TemporaryFolder());
  std::replace(temporary.begin(), temporary.end(), '\\', '/');
  std::string screens;
  for (const auto& [name, word] : kOpened) {
    install.Restart();
    const auto note = [&](Screen& screen) {
      auto* timer = dynamic_cast<Timer*>(screen.FindControl("Timer1"));
      if (timer != nullptr) install.host->Operate(screen, timer->on_timer);
      auto* grid = dynamic_cast<Grid*>(screen.FindControl("grid1"));
      if (grid != nullptr) grid->SetActiveRow(grid->rows());
      // The versions of the program and of its libraries change.
      if (auto* about = dynamic_cast<About*>(&screen)) {
        about->VersionLabel.SetCaption("<version>");
        about->LibrariesText.SetText("<libraries>");
      }
      std::string lines = LinesOf(screen);
      std::replace(lines.begin(), lines.end(), '\\', '/');
      lines = ReplaceText(lines, folder, "<install>/", ReplaceMode::kExact);
      lines = ReplaceText(lines, beside, "<beside>/", ReplaceMode::kExact);
      screens += ReplaceText(lines, temporary, "<temporary>/", ReplaceMode::kExact);
      const auto pressed = kPressed.find(screen.name());
      if (pressed != kPressed.end()) install.host->Press(screen, pressed->second);
    };
    install.Open(name, note, word);
  }
  std::ifstream file(GOLF_SCREENS);
  const std::string expected{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(Utf8FromText(screens), expected);
}

}  // namespace
}  // namespace golf
