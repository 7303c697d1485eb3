#include "screens/outlets/check_data.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/while_set.h"
#include "outlets/checkup/finding_list.h"
#include "screens/outlets/shown_place.h"
#include "screens/table_export.h"

namespace golf {

CheckData::CheckData(const ScreenContext& context)
    : Screen(kName, context), FindingList("FindingList", kTextColumn), run(context, ExitButton) {
  SetCaption("Check the data");
  Add({&CheckButton, &run.Working, &run.CancelButton, &SummaryLabel, &KindLabel, &KindList,
       &FindingLabel, &FindingList, &DetailLabel, &DetailText, &OpenButton, &CopyButton,
       &SaveButton, &ExitButton});
  FindingList.MakeList({"Severity", "Kind", "File", "Record", "Name", "Finding"});
  DetailText.SetReadOnly(true);
  CheckButton.SetDefault(true);
  CheckButton.on_click = [this] { Check(); };
  KindList.on_click = [this] {
    if (!loading_) FillList();
  };
  FindingList.on_row_change = [this] { ShowFinding(); };
  FindingList.on_double_click = [this] { Open(); };
  OpenButton.on_click = [this] { Open(); };
  CopyButton.on_click = [this] { CopyLines(host(), GridLines(FindingList)); };
  SaveButton.on_click = [this] {
    SaveText(state(), host(), {"Save as CSV", "Findings.csv", ".csv", "The findings were"},
             CsvText(GridLines(FindingList)));
  };
  ExitButton.on_click = [this] { Close(); };
  SummaryLabel.SetCaption("The check reads all files of the three programs. It changes nothing.");
  FillKinds();
}

void CheckData::OnActivate() {
  if (!unchanged_) unchanged_.emplace(state().files.gate());
}

// Replaces the findings. A cancelled check keeps the findings of the check before.
void CheckData::Check() {
  std::vector<Finding> findings;
  const bool is_whole =
      run.Run([&](const ReportProgress& report) { findings = FindingsByFile(state(), report); });
  if (!is_whole) {
    SummaryLabel.SetCaption(findings_.empty()
                                ? "The check was cancelled."
                                : "The check was cancelled. The list shows the check before.");
    return;
  }
  SortByKind(findings);
  shown_.clear();
  findings_ = std::move(findings);
  SummaryLabel.SetCaption(findings_.empty() ? "Nothing was found."
                                            : FindingCounts(findings_).Text() + ".");
  FillKinds();
}

// Lists the kinds of the findings and shows all findings.
void CheckData::FillKinds() {
  {
    const WhileSet loading(loading_);
    kinds_.clear();
    KindList.Clear();
    KindList.AddItem("all kinds");
    for (auto first = findings_.begin(); first != findings_.end();) {
      const auto last = std::find_if(first, findings_.end(), [&](const Finding& finding) {
        return finding.code != first->code;
      });
      kinds_.push_back(first->code);
      KindList.AddItem(std::string(KindOf(first->code).name) + " (" + std::to_string(last - first) +
                       ")");
      first = last;
    }
    KindList.Select(0);
  }
  FillList();
}

void CheckData::FillList() {
  const auto kind = static_cast<std::size_t>(std::max(KindList.index(), 0));
  shown_.clear();
  for (const Finding& finding : findings_) {
    if (kind == 0 || finding.code == kinds_[kind - 1]) shown_.push_back(&finding);
  }
  FindingList.SetRepainting(false);
  FindingList.SetRows(0);
  FindingList.SetRows(static_cast<int>(shown_.size()));
  int row = 0;
  for (const Finding* finding : shown_) {
    ++row;
    FindingList.SetText(kSeverityColumn, row, std::string(NameOf(KindOf(finding->code).severity)));
    FindingList.SetText(kKindColumn, row, std::string(KindOf(finding->code).name));
    FindingList.SetText(kFileColumn, row, finding->file);
    FindingList.SetText(kRecordColumn, row,
                        finding->record > 0 ? std::to_string(finding->record) : "");
    FindingList.SetText(kTitleColumn, row, finding->title);
    FindingList.SetText(kTextColumn, row, finding->text);
  }
  FindingList.SetRepainting(true);
  for (Button* button : {&CopyButton, &SaveButton}) button->SetEnabled(!shown_.empty());
  if (!shown_.empty()) FindingList.SetActiveRow(1);
  ShowFinding();
}

// Returns null if no row is active.
const Finding* CheckData::Selected() const {
  const int row = FindingList.active_row();
  return row > 0 ? shown_[static_cast<std::size_t>(row) - 1] : nullptr;
}

void CheckData::ShowFinding() {
  const Finding* const finding = Selected();
  OpenButton.SetEnabled(finding != nullptr);
  if (finding == nullptr) return DetailText.SetText("");
  const FindingKind& kind = KindOf(finding->code);
  DetailText.SetText(finding->text + "\r\n" + std::string(kind.effect) +
                     "\r\nWhat to do: " + std::string(kind.advice));
}

void CheckData::Open() {
  const Finding* const finding = Selected();
  if (finding != nullptr) ShowPlaceOf(state(), host(), *finding);
}

void CheckData::OnUnload() { unchanged_.reset(); }

void CheckData::Close() { host().Unload(*this); }

}  // namespace golf
