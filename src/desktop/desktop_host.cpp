#include "desktop/desktop_host.h"

#include <wx/app.h>
#include <wx/clipbrd.h>
#include <wx/datetime.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/frame.h>

#include <algorithm>
#include <utility>

#include "desktop/native_boxes.h"
#include "desktop/tools_menu.h"
#include "desktop/wx_text.h"

namespace golf {
namespace {

constexpr std::chrono::milliseconds kPaintInterval{50};

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

void DesktopHost::Open(Screen& screen) {
  if (in_run()) ForgetTypedInput();
  const View& view = views_.find(screen.name())->second;
  wxTopLevelWindow* window = NewWindow(view, TopWindow());
  auto* panel = new ScreenPanel(*window, *this, screen);
  if (auto* frame = dynamic_cast<wxFrame*>(window)) AddToolsMenu(*frame, state(), *this);
  view.fill(*panel, screen);
  if (view.kind == WindowKind::kDialog) window->CentreOnParent();
  if (view.kind == WindowKind::kDialogOverOpener && TopWindow() != nullptr) {
    window->Move(TopWindow()->GetPosition());
  }
  windows_.push_back({&screen, panel});
  panel->binding().BeginFocus();
  window->Show();
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
  windows_.erase(window);
  panel.Detach();
  auto* dialog = dynamic_cast<wxDialog*>(&panel.window());
  if (dialog != nullptr && dialog->IsModal()) {
    dialog->EndModal(wxID_CLOSE);  // makes ShowModal in RunModal return
  } else {
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

BoxButton DesktopHost::ShowBox(const Box& box) {
  wxWindow* parent = ReadyForBox();
  const PlainPointer plain_pointer;
  return ShowMessageDialog(parent, box);
}

std::string DesktopHost::ShowInputBox(const InputBox& box) {
  wxWindow* parent = ReadyForBox();
  const PlainPointer plain_pointer;
  return ShowInputDialog(parent, box);
}

Font DesktopHost::ShowFontChoice(std::string_view title, const Font& current) {
  wxWindow* parent = ReadyForBox();
  const PlainPointer plain_pointer;
  return ShowFontDialog(parent, title, current);
}

void DesktopHost::ErrorEndsClick(const NumberedError& error) {
  ShowBox({.title = "Golf Transfer", .text = error.Report(), .icon = BoxIcon::kStop});
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
  if (!windows_.empty()) windows_.back().panel->ShowProgress(reported_);
  for (const Window& window : windows_) {
    window.panel->binding().Refresh();
    window.panel->Update();
  }
  Yield(wxEVT_CATEGORY_UI);
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

void DesktopHost::BeginRun() {
  HostBase::BeginRun();
  reported_ = {};
  faults_before_ = faults().size();
  busy_in_run_.emplace();
  SetInRun(true);
  PaintNow();
}

void DesktopHost::EndRun() {
  ForgetTypedInput();
  HostBase::EndRun();
  SetInRun(false);
  busy_in_run_.reset();
  if (faults().size() > faults_before_) ShowFaultsSoon();
}

// Shows the faults after the boxes of the run, over the main window, since the screen of the run
// may be closed by then.
void DesktopHost::ShowFaultsSoon() {
  std::vector<NumberedError> noted(faults().begin() + static_cast<std::ptrdiff_t>(faults_before_),
                                   faults().end());
  windows_.front().panel->window().CallAfter([this, noted = std::move(noted)] {
    ShowBox({.title = "Faults", .text = FaultsText(noted), .icon = BoxIcon::kWarning});
  });
}

// Drops the operator's keys and clicks, which stay in the queue while windows are painted. It must
// be called while the widgets are disabled.
void DesktopHost::ForgetTypedInput() { Yield(wxEVT_CATEGORY_ALL); }

void DesktopHost::StartProgram(const std::string& path, const std::string& arguments) {
  state().files.platform().StartProgram(path, arguments);
}

void DesktopHost::CopyText(const std::string& text) {
  wxClipboardLocker clipboard;
  if (!!clipboard) wxTheClipboard->SetData(new wxTextDataObject(WxText(text)));
}

void DesktopHost::EndProcess() {
  HostBase::EndProcess();
  // ExitMainLoop is not used, since it does nothing while the event loop of a dialog runs.
  if (wxEventLoopBase* loop = wxTheApp->GetMainLoop()) loop->ScheduleExit();
}

}  // namespace golf
