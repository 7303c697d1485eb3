#include <wx/artprov.h>
#include <wx/statbmp.h>

#include <algorithm>

#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/native_boxes.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/tip_box.h"

namespace golf {
namespace {

constexpr int kUsualCharacters = 50;  // of a line of the message
constexpr int kMostLines = 16;
constexpr int kUnitsPerPixel = 1440 / 96;

wxStaticBitmap* NewPicture(wxWindow* parent, const TipBox& screen) {
  const wxArtID art = screen.is_question() ? wxART_QUESTION : wxART_INFORMATION;
  return new wxStaticBitmap(parent, wxID_ANY,
                            wxArtProvider::GetBitmapBundle(art, wxART_MESSAGE_BOX));
}

// Returns the size of the message box's text: as high as the text, up to a limit. The text is
// wrapped so that a scroll bar has space.
wxSize MessageSize(wxWindow* parent, const wxString& message, int width) {
  wxStaticText measure(parent, wxID_ANY, "");
  const int line = measure.GetCharHeight();
  measure.SetLabelText(message);
  measure.Wrap(width - line);
  const int height = measure.GetBestSize().y + line / 2;
  return {width, std::min(height, TextHeight(*parent, kMostLines))};
}

wxTextCtrl* NewMessage(ScreenPanel& panel, TipBox& screen, int width) {
  wxTextCtrl* message = MakeTextBox(panel.binding(), &panel, screen.Message,
                                    wxTE_MULTILINE | wxTE_READONLY | wxTE_BESTWRAP | wxBORDER_NONE);
  NameBy(panel.binding(), message, [&screen] {
    const wxString title = NameOf(screen.Title);
    return title.empty() ? wxString("Message") : title;
  });
  message->SetBackgroundColour(panel.window().GetBackgroundColour());
  message->SetMinSize(MessageSize(&panel, message->GetValue(), width));
  SetRoom(panel, *message);
  return message;
}

wxBoxSizer* Buttons(ScreenPanel& panel, TipBox& screen) {
  const auto button = [&](Button& control) {
    return MakeButton(panel.binding(), panel.foot(), control);
  };
  wxButton* ok = button(screen.OKButton);
  wxButton* yes = button(screen.YesButton);
  wxButton* no = button(screen.NoButton);
  return ButtonRow({.affirmative = screen.is_question() ? yes : ok, .negative = no});
}

}  // namespace

void FillTipBox(ScreenPanel& panel, TipBox& screen) {
  wxTopLevelWindow& window = panel.window();
  if (screen.always_on_top()) {
    window.SetWindowStyleFlag(window.GetWindowStyleFlag() | wxSTAY_ON_TOP);
  }
  wxStaticBitmap* picture = NewPicture(&panel, screen);
  const int picture_room = picture->GetBestSize().x + GroupGap(panel) + 2 * EdgeGap(panel);
  const bool narrow = screen.Tip()->buttons.empty();
  const int width = narrow ? panel.FromDIP(TipBox::kModelessWidth / kUnitsPerPixel) - picture_room
                           : TextWidth(panel, kUsualCharacters);
  wxStaticText* title = MakeWrappedLabel(panel.binding(), &panel, screen.Title, width);
  MakeBold(*title);
  wxStaticText* golfer = MakeText(&panel, GolferLine(screen.golfer()));
  golfer->SetName("Golfer");
  golfer->Show(!screen.golfer().empty());
  wxSizer* texts = Column({title, golfer, NewMessage(panel, screen, width)});

  auto* top = new wxBoxSizer(wxHORIZONTAL);
  top->Add(picture, wxSizerFlags().Border(wxRIGHT, GroupGap(panel)));
  top->Add(texts, wxSizerFlags(1).Expand());
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(top, wxSizerFlags(1).Expand());
  content->Add(MakeCheckBox(panel.binding(), &panel, screen.ShowMessage),
               wxSizerFlags().Border(wxTOP, GroupGap(panel)));
  AddToFoot(panel, Buttons(panel, screen));
  FinishWindow(panel, content);
}

}  // namespace golf
