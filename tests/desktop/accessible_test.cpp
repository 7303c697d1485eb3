// Reads the windows of all screens as a screen reader does. It runs on Linux with ATK and on
// Windows with MSAA. scripts/renew-pictures uses it to take the pictures of the help.

#include <gtest/gtest.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "core/text.h"
#include "desktop/accessible_tree.h"
#include "desktop/demo_desktop.h"
#include "desktop/wx_text.h"
#include "screens/transfers/kv_courses_to_qb.h"

namespace golf {
namespace {

// Collects the controls within a node that no other named node contains. A screen reader says the
// name of the group before the name of such a control.
void CollectSiblings(const AccessibleNode& node, std::vector<const AccessibleNode*>& siblings) {
  for (const AccessibleNode& child : node.children) {
    if (child.is_control) siblings.push_back(&child);
    if (child.name.empty()) CollectSiblings(child, siblings);
  }
}

void ExpectNames(const AccessibleNode& node) {
  std::vector<const AccessibleNode*> siblings;
  CollectSiblings(node, siblings);
  std::set<std::string> names;
  for (const AccessibleNode* sibling : siblings) {
    EXPECT_NE(sibling->name, "") << "a control with the value " << sibling->value.value_or("");
    EXPECT_TRUE(names.insert(std::string(Trim(sibling->name))).second)
        << "twice: " << sibling->name;
    // The toolkit connects a label with the widget that follows it.
    EXPECT_NE(LowerCase(sibling->name).find(Trim(LowerCase(sibling->label))), std::string::npos)
        << sibling->name << " has the label " << sibling->label;
  }
  const std::function<void(const AccessibleNode&)> expect_in_groups =
      [&](const AccessibleNode& inner) {
        for (const AccessibleNode& child : inner.children) {
          if (child.name.empty()) {
            expect_in_groups(child);
          } else {
            ExpectNames(child);
          }
        }
      };
  expect_in_groups(node);
}

std::string Utf8(const std::string& text) { return WxText(text).utf8_string(); }

void ExpectRows(const Grid& grid, wxDataViewCtrl& list) {
  std::vector<std::string> headings;
  for (unsigned i = 0; i < list.GetColumnCount(); ++i) {
    headings.push_back(list.GetColumn(i)->GetTitle().utf8_string());
  }
  std::vector<std::string> rows;
  for (int row = 1; row <= grid.rows(); ++row) {
    std::vector<std::string> cells;
    for (int column = 0; column <= grid.columns(); ++column) {
      if (!grid.IsHidden(column)) cells.push_back(Utf8(grid.text(column, row)));
    }
    rows.push_back(ReadRow(row, headings, cells));
  }
  EXPECT_EQ(RowsOf(list), rows);
}

// Compares what a screen reader reads with what the widget shows.
void ExpectValue(const Control& control, wxWindow& widget) {
  const AccessibleNode node = NodeOf(widget);
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    std::string value = node.value.value_or(Utf8(box->text()));
    std::erase(value, '\r');  // Windows ends lines with "\r\n"
    EXPECT_EQ(value, Utf8(box->text()));
  } else if (const auto* toggle = dynamic_cast<const Toggle*>(&control)) {
    EXPECT_EQ(node.is_checked.value_or(toggle->value()), toggle->value());
  } else if (auto* list = dynamic_cast<wxControlWithItems*>(&widget)) {
    const std::string selected = list->GetStringSelection().utf8_string();
    EXPECT_EQ(node.value.value_or(selected), selected);
  } else if (auto* rows = dynamic_cast<wxDataViewCtrl*>(&widget)) {
    ExpectRows(dynamic_cast<const Grid&>(control), *rows);
  } else if (dynamic_cast<wxStaticText*>(&widget) != nullptr) {
    const std::string shown = wxControl::RemoveMnemonics(widget.GetLabel()).utf8_string();
    EXPECT_NE(node.name.find(shown), std::string::npos) << node.name << " for " << shown;
  }
}

// Compares all visible controls of a screen.
int ExpectValues(const Screen& screen, wxWindow& window) {
  int compared = 0;
  std::map<std::string, std::size_t> seen;
  for (const Control* control : screen.controls()) {
    const std::vector<wxWindow*> widgets = WidgetsNamed(window, control->name());
    const std::size_t place = seen[control->name()]++;
    if (place >= widgets.size() || !widgets[place]->IsShownOnScreen()) continue;
    SCOPED_TRACE(control->name());
    ExpectValue(*control, *widgets[place]);
    ++compared;
  }
  return compared;
}

// Saves a picture of a window in the folder that the environment variable GOLF_PICTURES names. Does
// nothing if there is no such variable. `number` counts the pictures of a screen from 1. The
// program import of ImageMagick takes the picture, since the toolkit shows an old one.
void SavePicture(const wxTopLevelWindow& window, const std::string& screen, std::size_t number) {
  wxString folder;
  if (!wxGetEnv("GOLF_PICTURES", &folder)) return;
  constexpr long kPaintTime = 500;
  RunEvents(kPaintTime);
  const wxRect place = window.GetScreenRect();
  const std::string name = screen + (number == 1 ? "" : "-" + std::to_string(number)) + ".png";
  const wxString command =
      wxString::Format("import -window root -crop %dx%d+%d+%d +repage %s/%s", place.width,
                       place.height, place.x, place.y, folder, name);
  EXPECT_EQ(wxExecute(command, wxEXEC_SYNC | wxEXEC_NOEVENTS), 0) << command;
}

// Reads each screen that opens and answers boxes without showing them.
class ReadingHost : public BoxlessHost {
 public:
  using BoxlessHost::BoxlessHost;

  // Reads a screen, and then again after each step.
  void Read(Screen& screen);

  std::map<std::string, std::size_t> read;  // how often each screen was read, by its name

 protected:
  void RunModal(Screen& screen) override {
    const std::string name = screen.name();
    Read(screen);
    if (!IsShown(name)) return;
    Button* const leave = screen.LeaveButton();
    if (leave != nullptr) Operate(screen, *leave, [leave] { leave->Click(); });
  }

 private:
  void ReadNow(Screen& screen);
};

// Describes what the operator does in a screen after it was read: he presses a button, or chooses
// an item or a page.
struct Step {
  const char* screen;
  const char* control;
  int item = 0;
};
constexpr Step kSteps[] = {{"LoadRoster", "NewButton"},
                           {"LoadRosters", "NewButton"},
                           {"CourseTable", "EditCourseButton"},
                           {"CourseForm", "EditTeeButton"},
                           {"CheckData", "CheckButton"},
                           {"CheckData", "OpenButton"},
                           {"Results", "TabMain", 1},
                           {"Results", "TabMain", 2},
                           {"TeamResults", "SortButton"},
                           {"TeamLayouts", "NewButton"},
                           {"XReportsCustomTeamResults", "TabMain", 1},
                           {"KVCoursestoQB", "PreviewButton"},
                           {"KVtoZD", "FindZDButton"},
                           {"QBtoKV", "TournamentList"},
                           {"ZDtoKV", "SourceButton"},
                           {"ZDtoKV", "OKLEague"},
                           {"ZDtoQB", "SourceButton"}};

void Do(Control& control, int item) {
  if (auto* button = dynamic_cast<Button*>(&control)) button->Click();
  if (auto* list = dynamic_cast<List*>(&control)) list->Select(item);
  if (auto* tab = dynamic_cast<Tab*>(&control)) tab->Choose(item);
}

void ReadingHost::Read(Screen& screen) {
  const std::string name = screen.name();
  auto* timer = dynamic_cast<Timer*>(screen.FindControl("Timer1"));
  if (timer != nullptr && timer->on_timer) Operate(screen, timer->on_timer);
  if (!IsShown(name)) return;
  auto* grid = dynamic_cast<Grid*>(screen.FindControl("grid1"));
  if (grid != nullptr && grid->rows() > 0) grid->SetActiveRow(std::min(2, grid->rows()));
  ReadNow(screen);
  Control* const notice = screen.FindControl("NoticeFrame");
  if (notice != nullptr) {
    notice->SetVisible(true);
    ReadNow(screen);
  }
  for (const Step& step : kSteps) {
    if (step.screen != name) continue;
    SCOPED_TRACE(step.control);
    Control& control = *screen.FindControl(step.control);
    Operate(screen, control, [&] { Do(control, step.item); });
    ReadNow(screen);
  }
}

void ReadingHost::ReadNow(Screen& screen) {
  SCOPED_TRACE(screen.name());
  PaintNow();
  RunEvents(kWindowTime);
  auto& window = dynamic_cast<wxTopLevelWindow&>(*wxTopLevelWindows.GetLast()->GetData());
  ExpectNames(TreeOf(window));
  EXPECT_GT(ExpectValues(screen, window), 0);
  SavePicture(window, screen.name(), ++read[screen.name()]);
}

TEST(AccessibleTest, EveryScreenIsReadAsItIsShown) {
  const std::set<std::string> kShownAlone = {"TransferMenu", "InterruptedRun", "TipBox"};
  std::map<std::string, std::size_t> read;
  for (const auto& view : Views()) {
    SCOPED_TRACE(view.first);
    Demo<ReadingHost> demo;
    demo.host.clock = [] { return DateFromCivil({2026, 5, 12, 14, 32, 0}); };
    if (view.first == "TransferHistory") {  // which shows a transfer then
      demo.host.Operate([&] { Load<KVCoursestoQB>(demo.host).TransferCourses.Click(); });
    }
    if (kShownAlone.contains(view.first)) {
      demo.Show(view.first);
      demo.host.Read(demo.host.Load(view.first));
    } else if (CanOpenScreen(demo.host, view.first)) {
      demo.host.Operate([&] { OpenScreen(demo.install.state(), demo.host, view.first, "KV"); });
    }
    read.merge(demo.host.read);
  }
  EXPECT_EQ(read.size(), Views().size());
}

}  // namespace
}  // namespace golf
