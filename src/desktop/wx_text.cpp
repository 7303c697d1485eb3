#include "desktop/wx_text.h"

#include "core/code_page.h"

namespace golf {

wxString WxText(std::string_view text) {
  std::string filled(text);
  std::erase(filled, '\0');  // a field that was never filled contains NULs
  wxString shown = wxString::FromUTF8(Utf8FromText(filled));
  shown.Replace("\r\n", "\n");
  shown.Replace("\r", "\n");
  return shown;
}

wxString WxText(std::string_view text, const std::string& utf8_path) {
  wxString shown = WxText(text);
  const wxString path = wxString::FromUTF8(utf8_path);
  const wxString in_text = WxText(TextFromUtf8(utf8_path));
  if (in_text != path) shown.Replace(in_text, path);
  return shown;
}

std::string TextFromWx(const wxString& text) {
  return TextFromUtf8(std::string(text.utf8_str().data()));
}

}  // namespace golf
