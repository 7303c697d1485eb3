#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace golf {

// These convert texts of the screens to texts of the toolkit and back. The screens use code page
// 1252 and end lines with "\r" or "\r\n". The toolkit ends them with "\n".
wxString WxText(std::string_view text);
std::string TextFromWx(const wxString& text);

}  // namespace golf
