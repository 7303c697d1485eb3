#include "desktop/log_buttons.h"

#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/file.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/textbuf.h>

#include <functional>

#include "desktop/layout_helpers.h"

namespace golf {
namespace {

void Copy(const wxTextCtrl& log) {
  const wxClipboardLocker clipboard;
  if (!clipboard) return;
  wxTheClipboard->SetData(new wxTextDataObject(log.GetValue()));
  wxTheClipboard->Flush();  // keeps the text after the program has ended
}

// Saves the log to a file that the operator chooses. After an error, the toolkit shows a message
// and an existing file is not changed.
void Save(wxTextCtrl& log) {
  wxFileDialog dialog(wxGetTopLevelParent(&log), "Save Messages",
                      wxStandardPaths::Get().GetDocumentsDir(), "transfer messages.txt",
                      "Text files (*.txt)|*.txt|All files|*", wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
  if (dialog.ShowModal() != wxID_OK) return;
  wxFileName name(dialog.GetPath());
  if (!name.HasExt() && dialog.GetFilterIndex() == 0) name.SetExt("txt");
  wxTempFile file(name.GetFullPath());
  if (file.IsOpened() && file.Write(wxTextBuffer::Translate(log.GetValue()))) file.Commit();
}

// Creates a button that is enabled if the log is not empty and no run is in progress.
wxButton* MakeLogButton(wxWindow* parent, wxTextCtrl& log, const wxString& caption,
                        std::function<void()> work) {
  auto* button = new wxButton(parent, wxID_ANY, caption);
  button->Bind(wxEVT_UPDATE_UI, [&log](wxUpdateUIEvent& event) {
    event.Enable(log.IsThisEnabled() && !log.IsEmpty());
  });
  button->Bind(wxEVT_BUTTON, [&log, work](wxCommandEvent&) {
    if (log.IsThisEnabled()) work();
  });
  return button;
}

}  // namespace

wxSizer* LogButtons(wxWindow* parent, wxTextCtrl& log) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(MakeLogButton(parent, log, "&Copy", [&log] { Copy(log); }));
  row->Add(MakeLogButton(parent, log, "&Save As...", [&log] { Save(log); }),
           wxSizerFlags().Border(wxLEFT, CloseGap(*parent)));
  return row;
}

}  // namespace golf
