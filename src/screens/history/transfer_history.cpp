#include "screens/history/transfer_history.h"

#include "core/date_value.h"
#include "history/transactions.h"
#include "outlets/record_kinds.h"
#include "screens/history/change_preview.h"
#include "screens/history/run_undo.h"
#include "screens/table_export.h"

namespace golf {

TransferHistory::TransferHistory(const ScreenContext& context)
    : Screen(kName, context), RunList("RunList", kStateColumn) {
  SetCaption("Transfers");
  Add({&ListLabel, &RunList, &ReportLabel, &ReportText, &ChangesButton, &UndoButton, &CopyButton,
       &SaveButton, &ForgetButton, &ExitButton});
  RunList.MakeList({"When", "Transfer", "About", "Changes", "State"});
  ReportText.SetReadOnly(true);
  ExitButton.SetCancel(true);
  RunList.on_row_change = [this] { ShowRun(); };
  RunList.on_double_click = [this] { ShowChanges(); };
  ChangesButton.on_click = [this] { ShowChanges(); };
  UndoButton.on_click = [this] { Undo(); };
  CopyButton.on_click = [this] { host().CopyText(ReportText.text()); };
  SaveButton.on_click = [this] { Save(); };
  ForgetButton.on_click = [this] { Forget(); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

void TransferHistory::FillList() {
  list_ = ListRuns(state().transactions->history());
  for (const std::string& text : list_.damaged) host().Notify(text);
  RunList.SetRepainting(false);
  RunList.SetRows(static_cast<int>(list_.runs.size()));
  for (const HistoryRun& run : list_.runs) {
    RunList.SetText(0, run.number, std::to_string(run.number));
    RunList.SetText(kWhenColumn, run.number, WhenText(state(), run.title.moment));
    RunList.SetText(kTransferColumn, run.number,
                    run.IsUndo() ? "undo" : TransferName(run.title.command));
    RunList.SetText(kAboutColumn, run.number, AboutText(run));
    RunList.SetText(kChangesColumn, run.number, std::to_string(run.changes));
    RunList.SetText(kStateColumn, run.number, std::string(NameOf(run.state)));
  }
  RunList.SetRepainting(true);
  if (RunList.rows() > 0 && RunList.active_row() == 0) {
    RunList.SetActiveRow(1);
  } else {
    ShowRun();
  }
}

const HistoryRun& TransferHistory::Selected() const {
  return list_.runs[static_cast<std::size_t>(RunList.active_row()) - 1];
}

void TransferHistory::ShowRun() {
  const bool any = RunList.active_row() > 0;
  for (Button* button : {&ChangesButton, &CopyButton, &SaveButton, &ForgetButton}) {
    button->SetEnabled(any);
  }
  UndoButton.SetEnabled(any && Selected().state == RunState::kDone);
  if (any) ForgetButton.SetEnabled(Selected().state != RunState::kInterrupted);
  ReportText.SetText(any ? ReportOf(state().transactions->history(), Selected())
                         : "No transfer is kept yet.");
}

void TransferHistory::ShowChanges() {
  const RecordKinds kinds = MakeRecordKinds(state());
  ChangeTable table = TableOfChanges(state(), kinds, [&](const auto& each) {
    ForEachChange(state().transactions->history(), Selected(), kinds, each);
  });
  Load<ChangePreview>(host()).Show(ChangeListUse::kPastRun, std::move(table), "");
}

void TransferHistory::Undo() {
  UndoRun(state(), host(), Selected());
  FillList();
}

void TransferHistory::Save() {
  const HistoryRun& run = Selected();
  const std::string day = FormatPicture(CivilFromDate(run.title.moment), "yyyy'-'MM'-'dd HHmm");
  SaveText(
      state(), host(),
      {"Save As", TransferName(run.title.command) + " " + day + ".txt", ".txt", "The report was"},
      ReportText.text());
}

void TransferHistory::Forget() {
  const Box question{.title = "Forget",
                     .text = "Remove this transfer from the history for good?\r\r" +
                             TransferName(Selected().title.command) + ", " +
                             WhenText(state(), Selected().title.moment) +
                             "\r\rIt cannot be undone afterwards.",
                     .icon = BoxIcon::kQuestion,
                     .buttons = {BoxButton::kYes, BoxButton::kNo},
                     .default_button = 1};
  if (host().Ask(question) != BoxButton::kYes) return;
  const auto lock = state().files.platform().LockRun(state().ProgramPath);
  ForgetRun(state().transactions->history(), list_, Selected());
  FillList();
}

}  // namespace golf
