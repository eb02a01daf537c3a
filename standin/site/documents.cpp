#include "standin/site/documents.h"

#include "standin/site/pages.h"

namespace standin::site {

Answer document(const Request& request, const Sources&) {
    const std::string_view name = std::string_view(request.path).substr(request.path.rfind('/') + 1);
    const auto file = [](std::string_view bytes, const char* type) {
        return Answer{.status = 200, .body = std::string(bytes), .type = type};
    };
    if (name == "Pondira.doc") {
        return file(application_doc, "application/msword");
    }
    if (name == "Pondira.hwp") {
        return file(application_hwp, "application/x-hwp");
    }
    if (name == "Pondira.pdf") {
        return file(application_pdf, "application/pdf");
    }
    return refusal(404, "문서가 없습니다", "주소를 확인하여 주십시오.");
}

}  // namespace standin::site
