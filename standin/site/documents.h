#pragma once

#include <string_view>

namespace standin::site {

/// The application documents; the build puts them into the program.
extern const std::string_view application_doc;
extern const std::string_view application_hwp;
extern const std::string_view application_pdf;

}  // namespace standin::site
