#include "desktop/native_boxes.h"

#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/fontdlg.h>
#include <wx/msgdlg.h>
#include <wx/richmsgdlg.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>

#include <algorithm>

#include "desktop/wx_text.h"

namespace golf {
namespace {

// Describes a button in the toolkit's dialog. The toolkit has no Retry button, so its OK button
// gets that caption.
struct NativeButton {
  BoxButton button;
  unsigned long style;
  unsigned long default_style;  // some styles use the highest of 32 bits
  int answer;
};

constexpr NativeButton kButtons[] = {
    {BoxButton::kOk, wxOK, wxOK_DEFAULT, wxID_OK},
    {BoxButton::kCancel, wxCANCEL, wxCANCEL_DEFAULT, wxID_CANCEL},
    {BoxButton::kYes, wxYES_NO, wxYES_DEFAULT, wxID_YES},
    {BoxButton::kNo, wxYES_NO, wxNO_DEFAULT, wxID_NO},
    {BoxButton::kRetry, wxOK, wxOK_DEFAULT, wxID_OK},
};

const NativeButton& Native(BoxButton button) {
  return *std::find_if(std::begin(kButtons), std::end(kButtons),
                       [button](const NativeButton& native) { return native.button == button; });
}

// The GTK dialog has no icon, and no title if the title is "Message".
#ifdef __WXMSW__
using MessageDialog = wxMessageDialog;
#else
using MessageDialog = wxGenericMessageDialog;
#endif

long IconStyle(BoxIcon icon) {
  constexpr long kStyles[] = {wxICON_NONE, wxICON_INFORMATION, wxICON_QUESTION, wxICON_STOP,
                              wxICON_WARNING};
  return kStyles[static_cast<std::size_t>(icon)];
}

bool Has(const Box& box, BoxButton button) {
  return std::find(box.buttons.begin(), box.buttons.end(), button) != box.buttons.end();
}

// Is an input dialog that selects the proposed answer, so that typing replaces it. This must be
// done when the dialog opens, since the toolkit then sets the answer again and moves the cursor to
// its start.
class InputDialog : public wxTextEntryDialog {
 public:
  using wxTextEntryDialog::wxTextEntryDialog;

  bool TransferDataToWindow() override {
    const bool done = wxTextEntryDialog::TransferDataToWindow();
    m_textctrl->SelectAll();
    return done;
  }
};

// Outside Windows, a box without an icon gets one that fits its buttons.
long StyleOf(const Box& box) {
  BoxIcon icon = box.icon;
#ifndef __WXMSW__
  if (icon == BoxIcon::kNone) {
    icon = Has(box, BoxButton::kYes) ? BoxIcon::kQuestion : BoxIcon::kInformation;
  }
#endif
  long style = IconStyle(icon) | wxCENTRE;
  for (const BoxButton button : box.buttons) style |= Native(button).style;
  const std::size_t chosen = box.window_default.value_or(box.default_button);
  return style | Native(box.buttons.at(chosen)).default_style;
}

BoxButton ButtonOf(const Box& box, int answer) {
  for (const BoxButton button : box.buttons) {
    if (Native(button).answer == answer) return button;
  }
  return box.buttons.back();
}

// Escape means No in a box that has no Cancel. The toolkit would take it for the first button.
void SetEscape(wxDialog& dialog, const Box& box) {
  if (Has(box, BoxButton::kNo) && !Has(box, BoxButton::kCancel)) dialog.SetEscapeId(wxID_NO);
}

}  // namespace

wxString GolferLine(const std::string& golfer) {
  return golfer.empty() ? wxString() : "Golfer: " + WxText(golfer);
}

BoxButton ShowMessageDialog(wxWindow* parent, const Box& box, const wxString& text) {
  MessageDialog dialog(parent, text, WxText(box.title), StyleOf(box));
  dialog.SetExtendedMessage(GolferLine(box.window_golfer));
  if (Has(box, BoxButton::kRetry)) dialog.SetOKLabel("&Retry");
  SetEscape(dialog, box);
  return ButtonOf(box, dialog.ShowModal());
}

// The toolkit's Help button gets the caption of Stop. The toolkit's dialog does not accept
// wxICON_NONE.
RepeatedAnswer ShowRepeatedDialog(wxWindow* parent, const Box& box, const wxString& text) {
  wxRichMessageDialog dialog(parent, text, WxText(box.title),
                             (StyleOf(box) & ~wxICON_NONE) | wxHELP);
  dialog.SetExtendedMessage(GolferLine(box.window_golfer));
  dialog.SetHelpLabel("&Stop: nothing will have been changed");
  SetEscape(dialog, box);
  dialog.ShowCheckBox("Same &answer for the rest of this run");
  const int answer = dialog.ShowModal();
  return {.button = ButtonOf(box, answer),
          .for_rest = dialog.IsCheckBoxChecked(),
          .stops = answer == wxID_HELP};
}

std::string ShowInputDialog(wxWindow* parent, const InputBox& box) {
  InputDialog dialog(parent, WxText(box.text), WxText(box.title), WxText(box.default_answer));
  return dialog.ShowModal() == wxID_OK ? TextFromWx(dialog.GetValue()) : std::string();
}

std::string ShowPathDialog(wxWindow* parent, const std::string& title, const std::string& current) {
  const wxFileName path(WxText(current));
  wxFileDialog dialog(parent, WxText(title), path.GetPath(), path.GetFullName(),
                      wxFileSelectorDefaultWildcardStr, wxFD_SAVE);
  return dialog.ShowModal() == wxID_OK ? TextFromWx(dialog.GetPath()) : std::string();
}

std::string ShowFolderDialog(wxWindow* parent, const std::string& title,
                             const std::string& utf8_current) {
  wxDirDialog dialog(parent, WxText(title), wxString::FromUTF8(utf8_current),
                     wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST);
  return dialog.ShowModal() == wxID_OK ? dialog.GetPath().utf8_string() : std::string();
}

Font ShowFontDialog(wxWindow* parent, std::string_view title, const Font& current) {
  wxFontData data;
  data.SetInitialFont(wxFontInfo(current.size)
                          .FaceName(WxText(current.name))
                          .Bold(current.bold)
                          .Italic(current.italic));
  wxFontDialog dialog(parent, data);
  dialog.SetTitle(WxText(title));
  if (dialog.ShowModal() != wxID_OK) return current;
  const wxFont chosen = dialog.GetFontData().GetChosenFont();
  return {.name = TextFromWx(chosen.GetFaceName()),
          .size = chosen.GetPointSize(),
          .bold = chosen.GetNumericWeight() >= wxFONTWEIGHT_BOLD,
          .italic = chosen.GetStyle() != wxFONTSTYLE_NORMAL};
}

}  // namespace golf
