#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

namespace golf {

// Text of the screens and text of the toolkit. The screens' text is code page 1252, with lines that
// end in "\r" or "\r\n"; the toolkit ends them in "\n".
wxString WxText(std::string_view text);
std::string TextFromWx(const wxString& text);

}  // namespace golf
