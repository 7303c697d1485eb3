#include "screens/results/team_layout_builder.h"

#include <algorithm>
#include <map>
#include <utility>

#include "core/file_name.h"
#include "core/number_text.h"
#include "core/text.h"
#include "scoring/layouts/report_header.h"
#include "screens/file_changes.h"
#include "screens/results/no_tournament.h"
#include "stores/quenby/program_class.h"

namespace golf {
namespace {

constexpr int kLabelColumn = 0;
constexpr std::size_t kBlanks = 40;  // between an item of a cell and its code

struct SelectionStyle {
  const char* text;
  const char* code;
};
constexpr SelectionStyle kStyles[] = {
    {"GROSS FIRST - Select Gross ball(s) first then net", "G"},
    {"NET FIRST - Select Net ball(s) first then gross", "N"},
    {"BEST COMBO - Select ball(s) that gives best Gross and best Net combination", "B"},
};

std::vector<DropDownItem> ItemsOf(const std::vector<LayoutChoice>& choices) {
  std::vector<DropDownItem> items;
  for (const LayoutChoice& choice : choices) {
    const std::string cell = choice.text + std::string(kBlanks, ' ') + "|" + choice.code;
    items.push_back({choice.text, choice.code, cell});
  }
  return items;
}

std::string CodeOfCell(const std::string& text) {
  const std::size_t bar = text.find('|');
  return bar == std::string::npos ? std::string() : text.substr(bar + 1);
}

// Returns the hole that a row shows, or 0 if the row shows sums.
int HoleOfRow(int row) {
  for (int hole = 1; hole <= kLayoutHoles; ++hole) {
    if (HoleColumn(hole) == row) return hole;
  }
  return 0;
}

std::string FontText(const ReportFont& font) {
  std::string text = font.name + " - " + font.size + " ";
  if ((font.style & (ReportFont::kBold | ReportFont::kItalic)) == 0) return text + "Regular";
  if (font.style & ReportFont::kBold) text += "Bold ";
  if (font.style & ReportFont::kItalic) text += "Italic";
  return text;
}

}  // namespace

TextCombo XReportsCustomTeamResults::MakeHeader(int i) {
  return {"HeaderText(" + std::to_string(i) + ")",
          std::vector<std::string>(std::begin(kHeaderChoices), std::end(kHeaderChoices))};
}

std::string PlaceCodes::*XReportsCustomTeamResults::FieldOf(Code code) {
  constexpr std::string PlaceCodes::*kFields[] = {
      &PlaceCodes::ConsiderPlayers, &PlaceCodes::GrossScoresToUse, &PlaceCodes::NetScoresToUse};
  return kFields[static_cast<std::size_t>(code)];
}

XReportsCustomTeamResults::XReportsCustomTeamResults(const ScreenContext& context)
    : Screen(kName, context), grid1("grid1", SampleTeams::kLastColumn) {
  SetCaption("Team Results Report Layout Builder");
  AddControls();
  for (const int holes : HoleNumberChoices()) HoleNumberUsedList.AddItem(std::to_string(holes));
  for (int players = 1; players <= kMostLayoutPlayers; ++players) {
    PlayerPerTeamList.AddItem(std::to_string(players));
  }
  for (const SelectionStyle& style : kStyles) BallSelectionStyle.AddItem(style.text);
  LabelRows();
  sample_.HeadColumns();
  BindEvents();
}

void XReportsCustomTeamResults::AddControls() {
  Add({&TabMain, &NameLabel, &ReportName, &DescriptionLabel, &ReportDescription, &HoleNumberLabel,
       &HoleNumberUsedList, &PlayersLabel, &PlayerPerTeamList, &SelectionFrame});
  AddInto(SelectionFrame, {&BallSelectionOpt[0], &BallSelectionOpt[1], &BallSelectionStyle});
  Add({&CopyLabel, &grid1, &SampleDataGenerate, &CalculateButton});
  for (Control* control : controls()) {
    if (control != &TabMain) TabMain.Hold(*control, 0);
  }
  Add({&HeaderFrame});
  for (TextCombo& header : HeaderText) AddInto(HeaderFrame, {&header});
  AddInto(HeaderFrame, {&NumberLabel, &ReportNumber, &Header[0], &Header[1], &Header[2]});
  Add({&FontFrame});
  for (std::size_t i = 0; i < FontButton.size(); ++i) {
    AddInto(FontFrame, {&FontLabel[i], &FontButton[i]});
  }
  AddInto(FontFrame, {&DisplayHGridLines, &DisplayVGridLines});
  for (Frame* frame : {&HeaderFrame, &FontFrame}) TabMain.Hold(*frame, 1);
  Add({&SaveButton, &CancelButton, &Help, &Timer1});
  CancelButton.SetCancel(true);
}

void XReportsCustomTeamResults::LabelRows() {
  grid1.SetRepainting(false);
  grid1.SetRows(kTableColumns);
  for (int hole = 1; hole <= kLayoutHoles; ++hole) {
    const bool head = hole % kHoles == 1;
    const std::string round = head ? "Rnd " + std::to_string(hole / kHoles + 1) + "-" : "";
    grid1.SetText(kLabelColumn, HoleColumn(hole), round + "Hole " + std::to_string(hole));
  }
  for (int block = 1; block <= kBlocks; ++block) {
    const std::string so_far = block == 1 ? "" : "Total Rnd 1-" + std::to_string(block);
    const std::string labels[] = {"Out", "In", "Total", so_far};
    for (int sum = 1; sum <= kSumsOfBlock; ++sum) {
      grid1.SetText(kLabelColumn, SumColumn(block, sum), labels[sum - 1]);
      grid1.LockRow(SumColumn(block, sum), true);
    }
  }
  constexpr const char* kHeadings[] = {"Consider which player's scores?",
                                       "Gross Score (actual score)",
                                       "Net Score (less strokes on hole)"};
  grid1.LockAllColumns();
  for (int place = 0; place < kLayoutPlaces; ++place) {
    for (const Code code : {Code::kPlayers, Code::kGross, Code::kNet}) {
      const int column = ColumnOf(place, code);
      grid1.SetHeading(column, kHeadings[static_cast<std::size_t>(code)]);
      grid1.SetCellType(column, CellType::kDropDown);
      grid1.LockColumn(column, false);
    }
  }
  grid1.SetRepainting(true);
}

void XReportsCustomTeamResults::BindEvents() {
  const auto change = [this] { ChangeLayout(); };
  HoleNumberUsedList.on_click = change;
  PlayerPerTeamList.on_click = change;
  BallSelectionStyle.on_click = change;
  for (OptionButton& option : BallSelectionOpt) {
    option.on_click = [this, &option] {
      for (OptionButton& other : BallSelectionOpt) other.SetValue(&other == &option);
      ChangeLayout();
    };
  }
  grid1.on_change = [this](int column, int row) { ChangeCell(column, row); };
  SampleDataGenerate.on_click = [this] { sample_.Generate(); };
  CalculateButton.on_click = [this] { sample_.Calculate(); };
  for (std::size_t i = 0; i < FontButton.size(); ++i) {
    FontButton[i].on_click = [this, i] { ChooseFontOf(i); };
  }
  SaveButton.on_click = [this] { SaveReport(); };
  CancelButton.on_click = [this] { AskToCancel(); };
  Help.on_click = [this] {
    host().Ask(Box{.title = caption(),
                   .text = "Choose for each hole whose scores count and how many gross and net "
                           "balls are taken. Only as many holes need to be filled in as are scored "
                           "differently; the others follow them. A hole can take a second "
                           "selection, in the next columns. The sample columns show what made-up "
                           "teams get: a ball that counts is marked as used.",
                   .icon = BoxIcon::kInformation,
                   .window_help = name()});
  };
  Timer1.on_timer = [this] {
    Timer1.SetInterval(0);
    Begin();
  };
}

void XReportsCustomTeamResults::OnLoad() { Timer1.SetInterval(1); }

void XReportsCustomTeamResults::SetReportFileName(std::string name) {
  ReportName.SetText(name);
  file_name_ = std::move(name);
}

// Reads the layout and shows it. Timer1 calls it once after the screen is shown.
void XReportsCustomTeamResults::Begin() {
  sample_.SetSeed(host().Seed());
  if (state().Program().ActiveTournament() <= 0) {
    host().Ask(NoActiveTournament());
    return host().Unload(*this);
  }
  if (action_ == kNew) {
    MakeNewLayout();
  } else if (!LoadLayout()) {
    return host().Unload(*this);
  }
  ShowLayout();
  if (action_ != kShow) sample_.Generate();
}

void XReportsCustomTeamResults::MakeNewLayout() {
  layout_ = {};
  for (auto& hole : layout_.places) hole[0].ConsiderPlayers = "12345678";
  layout_.HeaderText[0] = "Report Name";
  layout_.fonts[0].size = "16";
}

bool XReportsCustomTeamResults::LoadLayout() {
  ReadLayout read =
      ReadReportLayout(state().files, state().StoreDataPath + file_name_ + extension_);
  if (!read.layout) {
    host().Ask(Box{.title = "Notice", .text = read.problem, .icon = BoxIcon::kStop});
    return false;
  }
  const int replaced = LimitToChoices(*read.layout);
  layout_ = *std::move(read.layout);
  if (replaced > 0) {
    host().Ask(
        Box{.title = "Notice", .text = UnknownCodesText(replaced), .icon = BoxIcon::kWarning});
  }
  if (IsPermanentLayout(file_name_)) {
    host().Ask(Box{.title = "Notice",
                   .text = "This is a permanent system report and cannot be altered, a copy has "
                           "been created to edit."});
    SetReportFileName("");
  }
  return true;
}

void XReportsCustomTeamResults::ShowLayout() {
  showing_ = true;
  ReportDescription.SetText(layout_.ReportDescription);
  const auto& numbers = HoleNumberChoices();
  HoleNumberUsedList.Select(static_cast<int>(
      std::find(numbers.begin(), numbers.end(), layout_.HoleNumberUsed) - numbers.begin()));
  PlayerPerTeamList.Select(layout_.PlayersPerTeam - 1);
  BallSelectionOpt[0].SetValue(layout_.BallSelectionOption != "S");
  BallSelectionOpt[1].SetValue(layout_.BallSelectionOption == "S");
  const auto style = std::find_if(
      std::begin(kStyles), std::end(kStyles),
      [this](const SelectionStyle& known) { return layout_.BallSelection == known.code; });
  BallSelectionStyle.Select(static_cast<int>(style - std::begin(kStyles)));
  for (std::size_t i = 0; i < HeaderText.size(); ++i) {
    HeaderText[i].SetText(layout_.HeaderText[i]);
    Header[i].SetValue(layout_.Header[i] != 0);
  }
  ReportNumber.SetText(layout_.ReportNumber);
  DisplayHGridLines.SetValue(layout_.DisplayHGridLines != 0);
  DisplayVGridLines.SetValue(layout_.DisplayVGridLines != 0);
  showing_ = false;
  ShowFonts();
  ShowLists();
  ShowCodes();
}

void XReportsCustomTeamResults::ShowFonts() {
  for (std::size_t i = 0; i < FontLabel.size(); ++i) {
    FontLabel[i].SetCaption(FontText(layout_.fonts[i]));
  }
}

void XReportsCustomTeamResults::ShowLists() {
  grid1.SetRepainting(false);
  const std::vector<DropDownItem> players = ItemsOf(PlayerChoices(layout_.PlayersPerTeam));
  const std::vector<DropDownItem> balls = ItemsOf(BallChoices(layout_.PlayersPerTeam));
  for (int place = 0; place < kLayoutPlaces; ++place) {
    grid1.SetItems(ColumnOf(place, Code::kPlayers), players);
    for (const Code code : {Code::kGross, Code::kNet}) {
      grid1.SetItems(ColumnOf(place, code), balls);
    }
  }
  sample_.HideColumns();
  grid1.SetRepainting(true);
}

void XReportsCustomTeamResults::ShowCodes() {
  grid1.SetRepainting(false);
  for (int hole = 1; hole <= kLayoutHoles; ++hole) {
    grid1.LockRow(HoleColumn(hole), hole > layout_.HoleNumberUsed);  // locks copied holes
  }
  for (int place = 0; place < kLayoutPlaces; ++place) {
    for (const Code code : {Code::kPlayers, Code::kGross, Code::kNet}) {
      const int column = ColumnOf(place, code);
      std::map<std::string_view, const std::string*> cells;  // the first item of each code
      for (const DropDownItem& item : grid1.items(column)) cells.emplace(item.code, &item.cell);
      for (int hole = 1; hole <= kLayoutHoles; ++hole) {
        grid1.SetText(column, HoleColumn(hole), *cells.at(layout_.At(hole, place).*FieldOf(code)));
      }
    }
  }
  grid1.SetRepainting(true);
}

void XReportsCustomTeamResults::TakeControls() {
  layout_.ReportDescription = ReportDescription.text();
  layout_.HoleNumberUsed = RoundToInt32(LeadingNumber(HoleNumberUsedList.text()));
  layout_.PlayersPerTeam = PlayerPerTeamList.index() + 1;
  layout_.BallSelectionOption = BallSelectionOpt[1].value() ? "S" : "D";
  layout_.BallSelection = BallSelectionStyle.text().substr(0, 1);
  for (std::size_t i = 0; i < HeaderText.size(); ++i) {
    layout_.HeaderText[i] = HeaderText[i].text();
    layout_.Header[i] = Header[i].value() ? 1 : 0;
  }
  layout_.ReportNumber = ReportNumber.text();
  layout_.DisplayHGridLines = DisplayHGridLines.value() ? 1 : 0;
  layout_.DisplayVGridLines = DisplayVGridLines.value() ? 1 : 0;
}

void XReportsCustomTeamResults::ChangeLayout() {
  if (showing_) return;
  const int players_before = layout_.PlayersPerTeam;
  const int holes_before = layout_.HoleNumberUsed;
  TakeControls();
  LimitToChoices(layout_);
  if (layout_.HoleNumberUsed != holes_before) CopyForward(layout_);
  ShowLists();
  ShowCodes();
  if (layout_.PlayersPerTeam != players_before) return sample_.Generate();
  sample_.Calculate();
}

// Stores the new code of a cell and shows its effects. A place without players has no balls.
void XReportsCustomTeamResults::ChangeCell(int column, int row) {
  const int hole = HoleOfRow(row);
  if (hole == 0 || column < 1 || column >= SampleTeams::kFirstColumn || column % 4 == 0) return;
  const auto code = static_cast<Code>((column - 1) % 4);
  PlaceCodes& place = layout_.At(hole, column / 4);
  place.*FieldOf(code) = CodeOfCell(grid1.text(column, row));
  if (place.ConsiderPlayers == "0") place = {};
  LimitToChoices(layout_);
  CopyForward(layout_);
  ShowCodes();
  sample_.Calculate();
}

const std::string& XReportsCustomTeamResults::ConsiderPlayers(int hole, int place) const {
  return layout_.At(hole, place).ConsiderPlayers;
}
const std::string& XReportsCustomTeamResults::GrossScoresToUse(int hole, int place) const {
  return layout_.At(hole, place).GrossScoresToUse;
}
const std::string& XReportsCustomTeamResults::NetScoresToUse(int hole, int place) const {
  return layout_.At(hole, place).NetScoresToUse;
}
const std::string& XReportsCustomTeamResults::ReportHeaderItem(int i) const {
  return HeaderText.at(static_cast<std::size_t>(i) - 1).text();
}
void XReportsCustomTeamResults::SetReportHeaderItem(int i, std::string text) {
  HeaderText.at(static_cast<std::size_t>(i) - 1).SetText(std::move(text));
}

void XReportsCustomTeamResults::GoTo(int page, Control& control) {
  TabMain.Choose(page);
  MoveFocus(&control);
}

// True if all texts can be stored in a layout file. Otherwise shows the operator a message and
// returns false.
bool XReportsCustomTeamResults::HasTextThatFits() {
  TextBox* const boxes[] = {&ReportDescription, &HeaderText[0], &HeaderText[1], &HeaderText[2],
                            &ReportNumber};
  const auto box = std::find_if(std::begin(boxes), std::end(boxes), [](const TextBox* text_box) {
    return !FitsReportLayout(text_box->text());
  });
  if (box == std::end(boxes)) return true;
  host().Ask(Box{.title = "Notice",
                 .text = "A text of a report layout cannot hold a double quote (\") or the end of "
                         "a line."});
  GoTo(*box == &ReportDescription ? 0 : 1, **box);
  return false;
}

// True if the layout cannot be saved under this name, or if the operator does not want to replace
// an existing layout. Shows the operator a message first.
bool XReportsCustomTeamResults::IsRefused(const std::string& name) {
  const auto refuse = [this](std::string text) {
    host().Ask(Box{.title = "Notice", .text = std::move(text)});
    GoTo(0, ReportName);
    return true;
  };
  if (name.empty()) return refuse("You did not enter a name for your Report.");
  const std::string fault = FileNameFault(name);
  if (!fault.empty()) return refuse("A report name " + fault);
  const bool another = !EqualIgnoringCase(name, file_name_);
  if (!another || !state().files.FileExists(state().StoreDataPath + name + extension_ + "1")) {
    return false;
  }
  if (IsPermanentLayout(name)) return refuse("A permanent system report cannot be replaced.");
  const BoxButton answer = host().Ask(
      Box{.title = "Replace existing report layout with this layout?",
          .text = "A report layout with this name already exists.  Do you want to replace that "
                  "layout with this layout?",
          .icon = BoxIcon::kQuestion,
          .buttons = {BoxButton::kYes, BoxButton::kNo},
          .default_button = 1});
  if (answer == BoxButton::kYes) return false;
  GoTo(0, ReportName);
  return true;
}

bool XReportsCustomTeamResults::SaveReport() {
  const std::string name(Trim(ReportName.text().substr(0, kLayoutNameWidth)));
  if (IsRefused(name) || !HasTextThatFits()) return false;
  TakeControls();
  CopyForward(layout_);
  const bool saved = ChangeFiles(state(), host(), "save-layout", name, [&] {
    WriteReportLayout(state().files, state().StoreDataPath + name + extension_, layout_);
  });
  if (!saved) return false;
  SetReportFileName(name);
  host().Unload(*this);
  return true;
}

void XReportsCustomTeamResults::AskToCancel() {
  const BoxButton answer =
      host().Ask(Box{.title = "Cancel?",
                     .text = "Do you want to cancel this Report Layout?  Any changes will be lost.",
                     .icon = BoxIcon::kQuestion,
                     .buttons = {BoxButton::kYes, BoxButton::kNo}});
  if (answer == BoxButton::kYes) host().Unload(*this);
}

void XReportsCustomTeamResults::ChooseFontOf(std::size_t i) {
  ReportFont& font = layout_.fonts[i];
  const Font current{.name = font.name,
                     .size = RoundToInt16(std::clamp(LeadingNumber(font.size), 1.0, 999.0)),
                     .bold = (font.style & ReportFont::kBold) != 0,
                     .italic = (font.style & ReportFont::kItalic) != 0};
  const Font chosen = host().AskForFont("Font", current);
  if (chosen == current || !FitsReportLayout(chosen.name)) return;
  font.name = chosen.name;
  font.size = std::to_string(chosen.size);
  font.style &= ~(ReportFont::kBold | ReportFont::kItalic);
  font.style |= (chosen.bold ? ReportFont::kBold : 0) | (chosen.italic ? ReportFont::kItalic : 0);
  ShowFonts();
}

}  // namespace golf
