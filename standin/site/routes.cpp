#include "standin/site/routes.h"

#include "standin/site/pages.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iostream>

namespace standin::site {
namespace {

using Page = Answer (*)(const Request& request, const Sources& sources);

/// A '*' at the beginning or the end of the path stands for any text.
struct Route {
    std::string_view path;
    Page page;
};

constexpr std::array routes = {
    Route{"/result", results_page},
    Route{"/result/one", result_page},
    Route{"/money", charges_page},
    Route{"/memedit", member_page},
    Route{"/inbox", inbox_page},
    Route{"/inbox/voice", received_voice},
    Route{"/", service_page},
    Route{"/company", maker_page},
    Route{"/idpass", find_password_page},
    Route{"*/htm/register/default.jsp", sign_up_page},
    Route{"/download/*", document},
    Route{"/update", update_page},
    Route{"/update/update.ini", current_update_list},
    Route{"/update/due/update.ini", due_update_list},
    Route{"/update/note", update_note},
};

bool matches(std::string_view route, std::string_view path) {
    if (route.starts_with('*')) {
        return path.ends_with(route.substr(1));
    }
    return route.ends_with('*') ? path.starts_with(route.substr(0, route.size() - 1)) : path == route;
}

}  // namespace

Answer answer(const Request& request, const Sources& sources) {
    const auto* found = std::find_if(routes.begin(), routes.end(),
                                     [&](const Route& route) { return matches(route.path, request.path); });
    if (found == routes.end()) {
        return refusal(404, "페이지가 없습니다", "주소를 확인하여 주십시오.");
    }
    try {
        return found->page(request, sources);
    } catch (const std::exception& error) {
        std::cerr << "carrier-site: " << request.path << ": " << error.what() << '\n';
        return refusal(500, "페이지를 만들 수 없습니다", "잠시 후 다시 시도하여 주십시오.");
    }
}

}  // namespace standin::site
