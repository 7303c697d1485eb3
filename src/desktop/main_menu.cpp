#include "desktop/main_menu.h"

#include <wx/menu.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "app/help_entries.h"
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

  // Replaces the entries if they have changed. An open menu would keep its width.
  void Fill() {
    if (host_.in_run()) return;
    std::vector<MenuEntry> entries = list_(state_);
    if (GetMenuItemCount() > 0 && std::equal(entries.begin(), entries.end(), entries_.begin(),
                                             entries_.end(), LooksTheSame)) {
      return;
    }
    while (GetMenuItemCount() > 0) Destroy(FindItemByPosition(0));
    entries_ = std::move(entries);
    for (const MenuEntry& entry : entries_) {
      Append(wxID_ANY, WxText(entry.caption))->Enable(entry.enabled);
    }
    if (entries_.empty()) Append(wxID_ANY, "(Nothing to work on here)")->Enable(false);
  }

 private:
  static bool LooksTheSame(const MenuEntry& a, const MenuEntry& b) {
    return a.caption == b.caption && a.enabled == b.enabled;
  }

  void Open(int id) {
    std::size_t place = 0;
    if (FindChildItem(id, &place) == nullptr || place >= entries_.size()) return;
    const auto open = entries_[place].open;  // the menu may be filled again meanwhile
    host_.Operate([&] { open(state_, host_); });
  }

  MenuEntries list_;
  SharedState& state_;
  HostBase& host_;
  std::vector<MenuEntry> entries_;
};

}  // namespace

void AddMainMenu(wxFrame& window, SharedState& state, HostBase& host) {
  auto* history = new ListedMenu(HistoryEntries(), state, host);
  auto* bar = new wxMenuBar;
  bar->Append(new ListedMenu(Tools, state, host), "T&ools");
  bar->Append(history, "&History");
  bar->Append(new ListedMenu(HelpEntries, state, host), "H&elp");
  window.SetMenuBar(bar);
  // Some toolkits calculate the width of a menu before they report that it opens. A window can
  // become active while a run ends.
  window.Bind(wxEVT_ACTIVATE, [history, &window](wxActivateEvent& event) {
    if (event.GetActive()) window.CallAfter([history] { history->Fill(); });
    event.Skip();
  });
  window.Bind(wxEVT_MENU_OPEN, [](wxMenuEvent& event) {
    if (auto* menu = dynamic_cast<ListedMenu*>(event.GetMenu())) menu->Fill();
    event.Skip();
  });
}

}  // namespace golf
