#pragma once
#include <string>
#include <string_view>

namespace worksheets {

/// A rich text file as HTML: paragraphs, bold, italic, font size, alignment, and letters written as
/// \'hh (Latin-1) and \uN. What else a file holds is passed over.
/// @throws std::runtime_error for what is no rich text or does not end.
std::string rtfToHtml(std::string_view rtf);

}  // namespace worksheets
