#include "desktop/invocation.h"

#include <wx/filefn.h>
#include <wx/msgout.h>

#include <memory>

#include "desktop/wx_text.h"

namespace golf {
namespace {

// Collects the output of the parser, which would otherwise be printed.
class CaughtOutput : public wxMessageOutput {
 public:
  CaughtOutput() : before_(Set(this)) {}
  CaughtOutput(const CaughtOutput&) = delete;
  CaughtOutput& operator=(const CaughtOutput&) = delete;
  ~CaughtOutput() override { Set(before_); }

  void Output(const wxString& text) override { caught_ += text; }
  std::string Utf8() const { return caught_.utf8_string(); }

 private:
  wxMessageOutput* before_;
  wxString caught_;
};

void Describe(wxCmdLineParser& parser) {
  parser.SetSwitchChars("-");
  parser.AddLongOption("install",
                       "the folder with kvdata, qbdata and zddata (default: the program's own)");
  parser.AddLongSwitch("help", "show this text", wxCMD_LINE_OPTION_HELP);
  parser.AddLongSwitch("version", "show the version");
  parser.AddParam("ZD|QB|KV", wxCMD_LINE_VAL_STRING, wxCMD_LINE_PARAM_OPTIONAL);
}

}  // namespace

Invocation ParseInvocation(wxCmdLineParser& parser) {
  Describe(parser);
  const std::string usage = parser.GetUsageString().utf8_string();
  const CaughtOutput caught;
  const int outcome = parser.Parse(false);
  Invocation invocation;
  if (outcome < 0) {
    invocation.answer = usage;
  } else if (outcome > 0) {
    invocation.complaint = caught.Utf8() + usage;
  } else if (parser.Found("version")) {
    invocation.answer = "Golf Transfer " GOLF_VERSION "\n";
  }
  wxString folder;
  if (parser.Found("install", &folder)) invocation.install = folder.utf8_string();
  if (parser.Found("install") && folder.empty()) {
    invocation.complaint = "--install names no folder.\n" + usage;
  }
  if (parser.GetParamCount() == 0) return invocation;
  const wxString first = parser.GetParam(0);
  const bool is_folder = first.find_first_of("/\\") != wxString::npos && wxDirExists(first);
  if (is_folder && invocation.install.empty()) {
    invocation.install = first.utf8_string();
  } else {
    invocation.word = TextFromWx(first);
  }
  return invocation;
}

}  // namespace golf
