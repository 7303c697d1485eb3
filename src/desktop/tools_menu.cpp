#include "desktop/tools_menu.h"

#include <wx/menu.h>

#include <map>

#include "app/tools.h"
#include "desktop/wx_text.h"

namespace golf {
namespace {

class ToolsMenu : public wxMenu {
 public:
  ToolsMenu(SharedState& state, HostBase& host) : state_(state), host_(host), tools_(Tools()) {
    Bind(wxEVT_MENU, [this](wxCommandEvent& event) { Open(event.GetId()); });
    Fill();
  }

  void Fill() {
    while (GetMenuItemCount() > 0) Destroy(FindItemByPosition(0));
    entries_.clear();
    for (const Tool& tool : tools_) {
      if (tool.is_there(state_)) entries_[Append(wxID_ANY, WxText(tool.caption))->GetId()] = &tool;
    }
    if (entries_.empty()) Append(wxID_ANY, "(No course library here)")->Enable(false);
  }

 private:
  void Open(int id) {
    const auto entry = entries_.find(id);
    if (entry == entries_.end()) return;
    host_.Operate([&] { entry->second->open(state_, host_); });
  }

  SharedState& state_;
  HostBase& host_;
  const std::vector<Tool> tools_;
  std::map<int, const Tool*> entries_;
};

}  // namespace

void AddToolsMenu(wxFrame& window, SharedState& state, HostBase& host) {
  auto* menu = new ToolsMenu(state, host);
  auto* bar = new wxMenuBar;
  bar->Append(menu, "T&ools");
  window.SetMenuBar(bar);
  window.Bind(wxEVT_MENU_OPEN, [menu](wxMenuEvent& event) {
    if (event.GetMenu() == menu) menu->Fill();
    event.Skip();
  });
}

}  // namespace golf
