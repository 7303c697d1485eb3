#include "screens/results/team_layout_list.h"

#include "scoring/layouts/report_layout.h"
#include "screens/results/team_layout_builder.h"
#include "stores/quenby/program_class.h"

namespace golf {

void OpenTeamLayoutBuilder(SharedState& state, ScreenHost& host, const std::string& name) {
  state.StoreDataPath = state.QBDataPath;
  state.Program().OpenMasterFile();
  state.Program().GetMasterRecord();
  auto& builder = Load<XReportsCustomTeamResults>(host);
  builder.SetAction(name.empty() ? XReportsCustomTeamResults::kNew
                                 : XReportsCustomTeamResults::kEdit);
  builder.SetReportFileName(name);
  host.ShowModal(builder);
  state.Program().CloseMasterFile();
}

TeamLayouts::TeamLayouts(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Team results layouts");
  Add({&ListLabel, &LayoutList, &EditButton, &NewButton, &ExitButton});
  EditButton.SetDefault(true);
  ExitButton.SetCancel(true);
  EditButton.on_click = [this] { Build(LayoutList.text()); };
  LayoutList.on_double_click = EditButton.on_click;
  NewButton.on_click = [this] { Build(""); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

void TeamLayouts::LoadList() {
  const std::string chosen = LayoutList.text();
  LayoutList.Clear();
  int index = 0;
  for (const std::string& name : ListReportLayouts(state().files, state().QBDataPath)) {
    LayoutList.AddItem(name);
    if (name == chosen) index = static_cast<int>(LayoutList.items().size()) - 1;
  }
  const bool any = !LayoutList.items().empty();
  if (any) LayoutList.Select(index);
  EditButton.SetEnabled(any);
}

void TeamLayouts::Build(const std::string& name) {
  OpenTeamLayoutBuilder(state(), host(), name);
  LoadList();
}

}  // namespace golf
