#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace golf {

// These convert texts of the screens to texts of the toolkit and back. The screens use code page
// 1252 and end lines with "\r" or "\r\n". The toolkit ends them with "\n".
wxString WxText(std::string_view text);
// Does the same. Spells a path that the text contains as the system does, also with characters that
// the code page lacks.
wxString WxText(std::string_view text, const std::string& utf8_path);
std::string TextFromWx(const wxString& text);

}  // namespace golf
