#include "desktop/main_menu.h"

#include <wx/menu.h>

#include <map>
#include <utility>

#include "app/history_entries.h"
#include "app/tools.h"
#include "desktop/wx_text.h"

namespace golf {
namespace {

class ListedMenu : public wxMenu {
 public:
  ListedMenu(MenuEntries list, SharedState& state, HostBase& host)
      : list_(std::move(list)), state_(state), host_(host) {
    Bind(wxEVT_MENU, [this](wxCommandEvent& event) { Open(event.GetId()); });
    Fill();
  }

  void Fill() {
    if (host_.in_run()) return;
    while (GetMenuItemCount() > 0) Destroy(FindItemByPosition(0));
    entries_.clear();
    for (MenuEntry& entry : list_(state_)) {
      wxMenuItem* item = Append(wxID_ANY, WxText(entry.caption));
      item->Enable(entry.enabled);
      entries_[item->GetId()] = std::move(entry);
    }
    if (entries_.empty()) Append(wxID_ANY, "(Nothing to work on here)")->Enable(false);
  }

 private:
  void Open(int id) {
    const auto entry = entries_.find(id);
    if (entry == entries_.end()) return;
    const auto open = entry->second.open;  // the menu may be filled again meanwhile
    host_.Operate([&] { open(state_, host_); });
  }

  MenuEntries list_;
  SharedState& state_;
  HostBase& host_;
  std::map<int, MenuEntry> entries_;
};

}  // namespace

void AddMainMenu(wxFrame& window, SharedState& state, HostBase& host) {
  auto* history = new ListedMenu(HistoryEntries(), state, host);
  auto* bar = new wxMenuBar;
  bar->Append(new ListedMenu(Tools, state, host), "T&ools");
  bar->Append(history, "&History");
  window.SetMenuBar(bar);
  // Some toolkits calculate the width of a menu before they report that it opens.
  window.Bind(wxEVT_ACTIVATE, [history](wxActivateEvent& event) {
    if (event.GetActive()) history->Fill();
    event.Skip();
  });
  window.Bind(wxEVT_MENU_OPEN, [](wxMenuEvent& event) {
    if (auto* menu = dynamic_cast<ListedMenu*>(event.GetMenu())) menu->Fill();
    event.Skip();
  });
}

}  // namespace golf
