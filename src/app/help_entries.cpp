#include "app/help_entries.h"

#include "screens/about.h"
#include "screens/menu/transfer_menu.h"
#include "screens/open_page.h"

namespace golf {

std::vector<MenuEntry> HelpEntries(SharedState&) {
  return {{.caption = "&Contents\tF1",
           .open = [](SharedState&, ScreenHost& host) { ShowHelp(host, TransferMenu::kName); }},
          {.caption = "&First steps",
           .open = [](SharedState&, ScreenHost& host) { Load<TransferMenu>(host).steps.Show(); }},
          {.caption = "&About...",
           .open = [](SharedState&, ScreenHost& host) { host.ShowModal(Load<About>(host)); }}};
}

}  // namespace golf
