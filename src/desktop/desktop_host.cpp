#include "desktop/desktop_host.h"

#include <wx/app.h>
#include <wx/clipbrd.h>
#include <wx/datetime.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/filename.h>
#include <wx/frame.h>
#include <wx/log.h>
#include <wx/process.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <algorithm>
#include <utility>

#include "desktop/layout_helpers.h"
#include "desktop/main_menu.h"
#include "desktop/native_boxes.h"
#include "desktop/window_sizes.h"
#include "desktop/wx_text.h"
#include "history/transactions.h"
#include "screens/history/interrupted_run.h"
#include "screens/open_page.h"
#include "screens/tip_box.h"

namespace golf {
namespace {

constexpr std::chrono::milliseconds kPaintInterval{50};
constexpr const char* kNoBrowser = "No browser can be started.";
constexpr int kBoxesBeforeOffer = 2;  // boxes of the same kind that offer only their own buttons

// Reports that the operator has stopped a run in a box.
class StoppedByOperator : public Stopped {
 public:
  StoppedByOperator() : Stopped(0) {}
};

DateValue ClockTime() {
  const wxDateTime now = wxDateTime::Now();
  return DateFromCivil({.year = now.GetYear(),
                        .month = now.GetMonth() + 1,
                        .day = now.GetDay(),
                        .hour = now.GetHour(),
                        .minute = now.GetMinute(),
                        .second = now.GetSecond()});
}

ScreenCatalogue WithView(const ScreenCatalogue& screens, const ViewCatalogue& views) {
  ScreenCatalogue seen;
  for (const auto& screen : screens) {
    if (views.contains(screen.first)) seen.insert(screen);
  }
  return seen;
}

wxTopLevelWindow* NewWindow(const View& view, wxWindow* parent) {
  if (view.kind == WindowKind::kMain) {
    auto* frame = new wxFrame(parent, wxID_ANY, "");
#ifdef __WXMSW__
    frame->SetIcons(wxIconBundle("golf_transfer", nullptr));  // from the program's resources
#endif
    return frame;
  }
  const long border = view.grows ? wxRESIZE_BORDER : 0;
  auto* dialog = new wxDialog(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                              wxDEFAULT_DIALOG_STYLE | border);
  dialog->SetEscapeId(wxID_NONE);  // the screen handles Escape
  return dialog;
}

void Yield(long categories) {
  if (wxEventLoopBase* loop = wxEventLoopBase::GetActive()) loop->YieldFor(categories);
}

// Returns a text with a line for each of the first faults and the number of the others.
std::string FaultsText(const std::vector<NumberedError>& faults) {
  constexpr std::size_t kMostShown = 10;
  std::string text = faults.size() == 1 ? "The transfer has carried on over a fault:"
                                        : "The transfer has carried on over " +
                                              std::to_string(faults.size()) + " faults:";
  for (std::size_t i = 0; i < std::min(faults.size(), kMostShown); ++i) {
    text += "\n" + faults[i].description();
  }
  if (faults.size() > kMostShown) {
    text += "\nand " + std::to_string(faults.size() - kMostShown) + " more";
  }
  return text;
}

// Returns two lines for each reason: the reason, and then the first names with the number of the
// other names.
std::string LeftOutText(const LeftOut& left_out) {
  constexpr std::size_t kMostNames = 10;
  struct Group {
    std::string reason;
    std::string names = {};
    std::size_t count = 0;
  };
  std::vector<Group> groups;
  left_out.ForEach([&](std::string_view title, std::string_view reason) {
    if (groups.empty() || groups.back().reason != reason) {
      groups.push_back({.reason = std::string(reason)});
    }
    Group& group = groups.back();
    if (++group.count > kMostNames) return;
    group.names += (group.count > 1 ? "; " : "") + std::string(title);
  });
  std::string text = "The transfer has left out:";
  for (const Group& group : groups) {
    text += "\n" + std::to_string(group.count) + " " + group.reason + "\n    " + group.names;
    if (group.count > kMostNames) {
      text += " and " + std::to_string(group.count - kMostNames) + " more";
    }
  }
  return text;
}

#ifdef __WXGTK__
// Runs xdg-open, and calls a function if xdg-open reports that there is no browser. Deletes itself
// when xdg-open has ended.
class BrowserStarter : public wxProcess {
 public:
  explicit BrowserStarter(std::function<void()> failed) : failed_(std::move(failed)) {}

  bool Start(const wxString& address) {
    wxString program, folders;
    return wxGetEnv("PATH", &folders) && wxFindFileInPath(&program, folders, "xdg-open") &&
           wxExecute("'" + program + "' '" + address + "'", wxEXEC_ASYNC, this) != 0;
  }

  void OnTerminate(int, int status) override {
    constexpr int kNoProgram = 3;
    if (status == kNoProgram) failed_();
    delete this;
  }

 private:
  std::function<void()> failed_;
};
#endif

// Makes the pointer normal as long as this object exists. The toolkit has such a class only on some
// systems.
class PlainPointer {
 public:
  PlainPointer() {
    for (; wxIsBusy(); ++depth_) wxEndBusyCursor();
  }
  PlainPointer(const PlainPointer&) = delete;
  PlainPointer& operator=(const PlainPointer&) = delete;
  ~PlainPointer() {
    for (; depth_ > 0; --depth_) wxBeginBusyCursor();
  }

 private:
  int depth_ = 0;
};

}  // namespace

DesktopHost::DesktopHost(SharedState& state, const ScreenCatalogue& screens, ViewCatalogue views)
    : HostBase(state, WithView(screens, views)), clock(ClockTime), views_(std::move(views)) {}

DesktopHost::~DesktopHost() {
  for (; !windows_.empty(); windows_.pop_back()) {
    KeepSizeOf(windows_.back());
    windows_.back().panel->Detach();
    delete &windows_.back().panel->window();
  }
}

wxTopLevelWindow* DesktopHost::TopWindow() const {
  return windows_.empty() ? nullptr : &windows_.back().panel->window();
}

std::vector<DesktopHost::Window>::iterator DesktopHost::Find(const Screen& screen) {
  return std::find_if(windows_.begin(), windows_.end(),
                      [&](const Window& window) { return window.screen == &screen; });
}

void DesktopHost::KeepSizeOf(const Window& window) {
  const std::string& name = window.screen->name();
  if (!views_.find(name)->second.grows) return;
  KeepSize(window.panel->window(), name, window.panel->noted_size());
}

void DesktopHost::Open(Screen& screen) {
  if (in_run()) ForgetTypedInput();
  const View& view = views_.find(screen.name())->second;
  wxTopLevelWindow* window = NewWindow(view, TopWindow());
  auto* panel = new ScreenPanel(*window, *this, screen);
  if (auto* frame = dynamic_cast<wxFrame*>(window)) AddMainMenu(*frame, state(), *this);
  view.fill(*panel, screen);
  if (view.grows) RestoreSize(*window, screen.name(), MostClientSize(*window));
  panel->NoteSize();
  if (view.kind == WindowKind::kMain && menu_position) window->Move(*menu_position);
  if (view.kind == WindowKind::kDialog) window->CentreOnParent();
  if (view.kind == WindowKind::kDialogOverOpener && TopWindow() != nullptr) {
    MoveOntoDisplay(*window, TopWindow()->GetPosition());
  }
  windows_.push_back({&screen, panel});
  panel->binding().BeginFocus();
  window->Show();
  LayOutAgain(*panel);  // GTK measures some texts correctly only after they are shown
  window->Raise();      // makes it the active window also without a window manager
}

void DesktopHost::RunModal(Screen& screen) {
  ScreenPanel& panel = *Find(screen)->panel;
  panel.binding().Refresh();
  auto& dialog = dynamic_cast<wxDialog&>(panel.window());
  dialog.ShowModal();
  dialog.Destroy();
  // Some window managers would give the focus to the main window, which accepts no input then.
  if (wxTopLevelWindow* below = TopWindow()) below->Raise();
}

void DesktopHost::Close(Screen& screen) {
  const auto window = Find(screen);
  ScreenPanel& panel = *window->panel;
  KeepSizeOf(*window);
  windows_.erase(window);
  panel.Detach();
  auto* dialog = dynamic_cast<wxDialog*>(&panel.window());
  if (dialog != nullptr && dialog->IsModal()) {
    dialog->EndModal(wxID_CLOSE);  // makes ShowModal in RunModal return
  } else {
    panel.window().Hide();  // the toolkit destroys it later
    panel.window().Destroy();
  }
}

// Returns the parent window for a box. Shows all changes first. During a run, drops earlier keys
// and clicks, so that they do not answer the box.
wxWindow* DesktopHost::ReadyForBox() {
  if (in_run()) ForgetTypedInput();
  PaintNow();
  return TopWindow();
}

// Some window managers would make the main window the active one after a box.
template <class Function>
auto DesktopHost::OverTopWindow(Function show) {
  wxWindow* const parent = ReadyForBox();
  const PlainPointer plain_pointer;
  auto answer = show(parent);
  if (wxTopLevelWindow* top = TopWindow()) top->Raise();
  return answer;
}

// Spells the folder of the install as the system does.
wxString DesktopHost::ShownText(const Box& box) const {
  return WxText(box.text, state().files.platform().Utf8ProgramFolder());
}

// Counts a box of the current run. Returns true if the run can be stopped and has shown two boxes
// of the same kind before. A box that offers to retry is never repeated, since the same answer
// would retry endlessly.
bool DesktopHost::IsRepeated(const Box& box) {
  const Transactions& transactions = *state().transactions;
  if (!in_run() || !transactions.IsOpen() || transactions.HasCommitted()) return false;
  if (std::find(box.buttons.begin(), box.buttons.end(), BoxButton::kRetry) != box.buttons.end()) {
    return false;
  }
  return ++repeats_[{box.title, box.buttons}].boxes > kBoxesBeforeOffer;
}

// Throws StoppedByOperator if the operator stops the run.
BoxButton DesktopHost::AskRepeated(const Box& box) {
  Repeats& repeats = repeats_[{box.title, box.buttons}];
  if (repeats.answer) return *repeats.answer;
  const RepeatedAnswer answer = OverTopWindow(
      [&](wxWindow* parent) { return ShowRepeatedDialog(parent, box, ShownText(box)); });
  if (answer.stops) throw StoppedByOperator();
  if (answer.for_rest) repeats.answer = answer.button;
  return answer.button;
}

// Shows a repeated question of a tip box as a message box, which offers more answers.
void DesktopHost::ShowModal(Screen& screen) {
  auto* tip = dynamic_cast<TipBox*>(&screen);
  if (tip == nullptr || tip->Tip()->type != TipBox::kLastingQuestion) {
    return HostBase::ShowModal(screen);
  }
  const Box box{.title = tip->Tip()->title,
                .text = tip->Tip()->text,
                .icon = BoxIcon::kQuestion,
                .buttons = {BoxButton::kYes, BoxButton::kNo},
                .default_button = 1,
                .window_golfer = tip->golfer()};
  if (!IsRepeated(box)) return HostBase::ShowModal(screen);
  const bool yes = Ask(box) == BoxButton::kYes;
  (yes ? tip->YesButton : tip->NoButton).Click();
}

// Tells the operator if he has stopped the run himself. Any other request ends the program.
void DesktopHost::RunStopped() {
  try {
    throw;
  } catch (const StoppedByOperator&) {
    ShowBox({.title = "Golf Transfer",
             .text = "The transfer was stopped. Nothing has been changed.",
             .icon = BoxIcon::kInformation});
  } catch (const Stopped&) {
    EndProcess();
  }
}

BoxButton DesktopHost::ShowBox(const Box& box) {
  if (box.window_answer) return *box.window_answer;
  if (!box.window_help.empty()) {
    ShowHelp(*this, box.window_help);
    return box.buttons[box.default_button];
  }
  if (IsRepeated(box)) return AskRepeated(box);
  return OverTopWindow(
      [&](wxWindow* parent) { return ShowMessageDialog(parent, box, ShownText(box)); });
}

std::string DesktopHost::ShowInputBox(const InputBox& box) {
  return OverTopWindow([&box](wxWindow* parent) { return ShowInputDialog(parent, box); });
}

std::string DesktopHost::ShowPathChoice(const std::string& title, const std::string& current) {
  return OverTopWindow([&](wxWindow* parent) { return ShowPathDialog(parent, title, current); });
}

std::string DesktopHost::ShowFolderChoice(const std::string& title,
                                          const std::string& utf8_current) {
  return OverTopWindow(
      [&](wxWindow* parent) { return ShowFolderDialog(parent, title, utf8_current); });
}

// Returns an empty text if the code page lacks a character of the path.
std::string DesktopHost::DocumentsFolder() {
  const wxString folder = wxStandardPaths::Get().GetDocumentsDir() + wxFileName::GetPathSeparator();
  const std::string text = TextFromWx(folder);
  return WxText(text) == folder ? text : std::string();
}

Font DesktopHost::ShowFontChoice(std::string_view title, const Font& current) {
  return OverTopWindow([&](wxWindow* parent) { return ShowFontDialog(parent, title, current); });
}

void DesktopHost::ErrorEndsClick(const NumberedError& error) {
  ShowBox({.title = "Golf Transfer", .text = error.Report(), .icon = BoxIcon::kStop});
}

// A run calls this after its commit, so its gauge must show the end.
void DesktopHost::NoteLeftOut(const LeftOut& left_out) {
  left_out_.Append(left_out);
  reported_.done = reported_.total;
}

void DesktopHost::Notify(const std::string& text) {
  ShowBox({.title = "Golf Transfer", .text = text, .icon = BoxIcon::kInformation});
}

void DesktopHost::Beep() { wxBell(); }

void DesktopHost::SetPointer(Pointer pointer) {
  if (pointer == Pointer::kNormal) {
    busy_.reset();
  } else if (!busy_) {
    busy_.emplace();
  }
}

bool DesktopHost::PaintIsDue() const {
  return std::chrono::steady_clock::now() - painted_ >= kPaintInterval;
}

void DesktopHost::PaintNow() {
  ShowTitles();
  if (!windows_.empty()) windows_.back().panel->ShowProgress(reported_);
  for (const Window& window : windows_) {
    window.panel->binding().Refresh();
    window.panel->Update();
  }
  const bool can_cancel = run_by_ != nullptr && run_by_->RunCancelButton() != nullptr;
  Yield(can_cancel ? wxEVT_CATEGORY_UI | wxEVT_CATEGORY_USER_INPUT : wxEVT_CATEGORY_UI);
  const auto window = can_cancel ? Find(*run_by_) : windows_.end();
  if (window != windows_.end()) window->panel->binding().RunWaiting();
  painted_ = std::chrono::steady_clock::now();
}

void DesktopHost::Report(const Progress& progress) {
  reported_ = progress;
  reported_.doing = {};
  if (PaintIsDue()) PaintNow();
}

void DesktopHost::SetInRun(bool in_run) {
  for (const Window& window : windows_) window.panel->SetInRun(in_run);
}

// Shows the titles of all windows. Marks the title of the window whose run is a preview.
void DesktopHost::ShowTitles() {
  for (const Window& window : windows_) {
    window.panel->ShowTitle(window.screen == run_by_ && state().transactions->IsPreview());
  }
}

void DesktopHost::BeginRun() {
  HostBase::BeginRun();
  reported_ = {};
  faults_before_ = faults().size();
  run_by_ = Top();
  repeats_.clear();
  left_out_ = {};
  for (const Window& window : windows_) window.panel->ShowLeftOut(left_out_);
  busy_in_run_.emplace();
  SetInRun(true);
  PaintNow();
}

void DesktopHost::EndRun() {
  ForgetTypedInput();
  HostBase::EndRun();
  SetInRun(false);
  Screen* const screen = std::exchange(run_by_, nullptr);
  ShowTitles();
  busy_in_run_.reset();
  if (faults().size() > faults_before_) ShowFaultsSoon();
  if (left_out_.Count() > 0) ShowLeftOut(*screen);
}

// Shows the faults after the boxes of the run. The screen of the run may be closed by then.
void DesktopHost::ShowFaultsSoon() {
  const std::vector<NumberedError> noted(
      faults().begin() + static_cast<std::ptrdiff_t>(faults_before_), faults().end());
  ShowSoon({.title = "Faults", .text = FaultsText(noted), .icon = BoxIcon::kWarning});
}

// Shows what the run has left out in the window of its screen, or in a box if the window is closed
// or has no place for it.
void DesktopHost::ShowLeftOut(const Screen& screen) {
  const auto window = Find(screen);
  if (window != windows_.end() && window->panel->ShowLeftOut(left_out_)) return;
  ShowSoon({.title = "Left out", .text = LeftOutText(left_out_), .icon = BoxIcon::kInformation});
}

// Shows a box over the main window after the current event.
void DesktopHost::ShowSoon(Box box) {
  windows_.front().panel->window().CallAfter([this, box = std::move(box)] { ShowBox(box); });
}

// Drops the operator's keys and clicks, which stay in the queue while windows are painted. It must
// be called while the widgets are disabled.
void DesktopHost::ForgetTypedInput() { Yield(wxEVT_CATEGORY_ALL); }

// Opens the screen that decides about the interrupted run, instead of showing the text.
void DesktopHost::NoteUnfinishedRun(const std::string&) {
  ShowModal(golf::Load<InterruptedRun>(*this));
}

void DesktopHost::StartProgram(const std::string& path, const std::string& arguments) {
  state().files.platform().StartProgram(path, arguments);
}

// On Linux, the program that starts the browser reports only at its end that there is none. A box
// names the page then.
void DesktopHost::OpenInBrowser(const std::string& utf8_path) {
  const wxLogNull quiet;  // the toolkit would show its own message
  const wxString address = wxFileName::FileNameToURL(wxString::FromUTF8(utf8_path));
#ifdef __WXGTK__
  auto* starter = new BrowserStarter([this, utf8_path, alive = std::weak_ptr<const bool>(alive_)] {
    if (!alive.expired() && !windows_.empty()) ShowSoon(UnopenedPage(kNoBrowser, utf8_path));
  });
  if (starter->Start(address)) return;
  delete starter;
#endif
  if (wxLaunchDefaultBrowser(address)) return;
  throw NumberedError(ErrorNumber::kBadCall, kNoBrowser);
}

void DesktopHost::CopyText(const std::string& text) {
  wxClipboardLocker clipboard;
  if (!!clipboard) wxTheClipboard->SetData(new wxTextDataObject(WxText(text)));
}

void DesktopHost::SuggestRow(Screen& screen, Grid& list, int row) {
  if (row > 0) list.SetActiveRow(row);
  screen.MoveFocus(&list);
}

// Shows the text after the window of the screen has opened.
bool DesktopHost::OpensDespite(const std::string& text) {
  ShowSoon({.title = "Golf Transfer", .text = text, .icon = BoxIcon::kWarning});
  return true;
}

void DesktopHost::OpenInstall(const std::string& utf8_folder) {
  wxTheApp->CallAfter([open = on_open_install, utf8_folder] {
    if (open) open(utf8_folder);
  });
}

void DesktopHost::EndProcess() {
  HostBase::EndProcess();
  // ExitMainLoop is not used, since it does nothing while the event loop of a dialog runs.
  if (wxEventLoopBase* loop = wxTheApp->GetMainLoop()) loop->ScheduleExit();
}

}  // namespace golf
