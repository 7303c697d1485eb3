#include "screens/results/team_layout_list.h"

#include "core/file_name.h"
#include "core/text.h"
#include "scoring/layouts/report_layout.h"
#include "screens/file_changes.h"
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
  Add({&ListLabel, &LayoutList, &EditButton, &NewButton, &ExitButton, &DuplicateButton,
       &DeleteButton});
  EditButton.SetDefault(true);
  ExitButton.SetCancel(true);
  EditButton.on_click = [this] { Build(LayoutList.text()); };
  LayoutList.on_double_click = EditButton.on_click;
  NewButton.on_click = [this] { Build(""); };
  DuplicateButton.on_click = [this] { Duplicate(); };
  DeleteButton.on_click = [this] { Delete(); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

void TeamLayouts::LoadList(const std::string& chosen) {
  LayoutList.Clear();
  int index = 0;
  for (const std::string& name : ListReportLayouts(state().files, state().QBDataPath)) {
    LayoutList.AddItem(name);
    if (EqualIgnoringCase(name, chosen)) index = static_cast<int>(LayoutList.items().size()) - 1;
  }
  const bool any = !LayoutList.items().empty();
  if (any) LayoutList.Select(index);
  for (Button* button : {&EditButton, &DuplicateButton, &DeleteButton}) button->SetEnabled(any);
}

void TeamLayouts::Build(const std::string& name) {
  OpenTeamLayoutBuilder(state(), host(), name);
  LoadList(name);
}

// Returns the name with the first number that no layout has.
std::string TeamLayouts::UnusedName(const std::string& name) const {
  for (int number = 2;; ++number) {
    const std::string end = " " + std::to_string(number);
    const std::string unused = name.substr(0, kLayoutNameWidth - end.size()) + end;
    if (!ReportLayoutExists(state().files, state().QBDataPath, unused)) return unused;
  }
}

void TeamLayouts::Duplicate() {
  const std::string name = LayoutList.text();
  const std::string answer = host().Ask(InputBox{
      .title = "Duplicate layout", .text = "Name of the copy", .default_answer = UnusedName(name)});
  const std::string copy(Trim(answer.substr(0, kLayoutNameWidth)));
  if (copy.empty()) return;
  const auto refuse = [this](const std::string& text) {
    host().Ask(Box{.title = "Notice", .text = text});
  };
  const std::string fault = FileNameFault(copy);
  if (!fault.empty()) return refuse("A report name " + fault);
  if (ReportLayoutExists(state().files, state().QBDataPath, copy)) {
    return refuse("A report layout with this name already exists.");
  }
  ChangeFilesOrNone(state(), host(), "copy-layout", copy,
                    [&] { CopyReportLayout(state().files, state().QBDataPath, name, copy); });
  LoadList(copy);
}

void TeamLayouts::Delete() {
  const std::string name = LayoutList.text();
  if (IsPermanentLayout(name)) {
    host().Ask(
        Box{.title = "Notice", .text = "This is a permanent system report and cannot be deleted."});
    return;
  }
  const BoxButton answer = host().Ask(
      Box{.title = "Delete layout",
          .text = "Delete the layout \"" + name + "\"?\r\rThe menu History can undo this.",
          .icon = BoxIcon::kQuestion,
          .buttons = {BoxButton::kYes, BoxButton::kNo},
          .default_button = 1});
  if (answer != BoxButton::kYes) return;
  ChangeFilesOrNone(state(), host(), "delete-layout", name,
                    [&] { DeleteReportLayout(state().files, state().QBDataPath, name); });
  LoadList("");
}

}  // namespace golf
