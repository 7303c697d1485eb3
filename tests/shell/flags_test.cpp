// Tests which controls are hidden, disabled or read-only, and which buttons Enter and Escape press,
// when each screen opens.

#include "app/demo/demo_install.h"
#include "support/test_host.h"

namespace golf {
namespace {

// Returns the marks of all columns: "h" for a hidden column, the number of its rows that are not
// locked, or "." for a visible column whose rows are all locked.
std::string MarksOf(const Grid& grid) {
  std::string marks;
  for (int column = 0; column <= grid.columns(); ++column) {
    int open = 0;
    for (int row = 1; row <= grid.rows(); ++row) open += grid.IsLocked(column, row) ? 0 : 1;
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

// Returns a line with the controls that have a mark other than ".". Controls whose names differ
// only in a number share an entry.
std::string FlagsOf(const Screen& screen) {
  std::map<std::string, std::string> marks;
  for (const Control* control : screen.controls()) {
    marks[control->name().substr(0, control->name().find('('))] += MarksOf(*control);
  }
  std::string flags = screen.name() + ":";
  for (const auto& [name, of_name] : marks) {
    if (of_name.find_first_not_of('.') != std::string::npos) flags += " " + name + "=" + of_name;
  }
  return flags + "\n";
}

TEST(FlagsTest, OfEachScreenOnTheDemonstrationInstall) {
  const std::pair<const char*, const char*> kOpened[] = {
      {"TransferMenu", ""}, {"LoadRoster", ""},     {"LoadRoster", "OPENONLY"},
      {"LoadRosters", ""},  {"CourseTable", "KV"},  {"TeamResults", ""},
      {"TeamLayouts", ""},  {"KVCoursestoQB", ""},  {"KVtoQB", ""},
      {"KVtoZD", ""},       {"QBtoKV", ""},         {"ZDtoKV", ""},
      {"ZDtoQB", ""},       {"TransferHistory", ""}};
  const std::map<std::string, const char*> kPressed = {{"CourseTable", "EditCourseButton"},
                                                       {"CourseForm", "EditTeeButton"},
                                                       {"TeamResults", "SortButton"},
                                                       {"TeamLayouts", "NewButton"},
                                                       {"KVCoursestoQB", "PreviewButton"}};
  TestInstall install(false);
  MakeDemoInstall(install.state());
  std::string flags;
  for (const auto& [name, word] : kOpened) {
    install.Restart();
    const auto note = [&](Screen& screen) {
      auto* timer = dynamic_cast<Timer*>(screen.FindControl("Timer1"));
      if (timer != nullptr) install.host->Operate(screen, timer->on_timer);
      auto* grid = dynamic_cast<Grid*>(screen.FindControl("grid1"));
      if (grid != nullptr) grid->SetActiveRow(grid->rows());
      flags += FlagsOf(screen);
      const auto pressed = kPressed.find(screen.name());
      if (pressed != kPressed.end()) install.host->Press(screen, pressed->second);
    };
    install.Open(name, note, word);
  }
  EXPECT_EQ(flags,
            "TransferMenu: ExitButton=X\n"
            "LoadRoster: CancelButton=X LoadButton=E NewRosterFrame=h RepairButton=h grid1=h..\n"
            "LoadRoster: CancelButton=X DeleteButton=h LoadButton=E NewButton=h NewRosterFrame=h"
            " RepairButton=h grid1=h..\n"
            "LoadRosters: AddEditRosterFrame=h CancelButton=X LoadButton=E RepairButton=h"
            " grid1=h.....\n"
            "CourseTable: CloseButton=X CourseGrid=h..h\n"
            "CourseForm: CancelButton=X HolesFrame=d OKButton=E grid1=h......\n"
            "CourseTee: BackNineFrame=d CancelButton=X FrontNineFrame=d"
            " HoleNumber=h........h........ OKButton=E TeeFrame=d TotalFrame=d\n"
            "TeamResults: ExitButton=X grid1=h..............hhhhhhh grid2=h......................\n"
            "GridSort: SortCancel=X SortOK=E WorkingLabel=h WorkingTime=h\n"
            "TeamLayouts: EditButton=E ExitButton=X\n"
            "XReportsCustomTeamResults: CancelButton=X"
            " grid1=.111.111.....hhhh....hhhh.....hhhh....hhhh.\n"
            "KVCoursestoQB: CancelButton=X TransferCourses=E\n"
            "ChangePreview: ChangeList=h.... CloseButton=X\n"
            "KVtoQB: Convert18Hcpto9Hcp=h ExitButton=X TransferButton=E grid1=h.15.\n"
            "KVtoZD: CancelButton=X Frame2=h Message=r\n"
            "QBtoKV: ExitButton=X FirstTimeLoaded=h LTeeCombo=.hhhh MTeeCombo=.hhhh Message=r"
            " QBLTee=.hhhh QBLTeeLabel=.hhhh QBMTee=.hhhh QBMTeeLabel=.hhhh TransferButton=E\n"
            "ZDtoKV: ExitButton=X Frame1=h Message=r\n"
            "ZDtoQB: CancelButton=X Frame1=h Message=r\n"
            "TransferHistory: ChangesButton=d CopyButton=d ExitButton=X ForgetButton=d ReportText=r"
            " RunList=h..... SaveButton=d UndoButton=d\n");
}

}  // namespace
}  // namespace golf
