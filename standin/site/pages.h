#pragma once

#include "standin/site/page.h"

namespace standin::site {

// For a subscriber: results and charges from the ledger, the rest from carrier.ini.
Answer results_page(const Request& request, const Sources& sources);
Answer result_page(const Request& request, const Sources& sources);
Answer charges_page(const Request& request, const Sources& sources);
Answer member_page(const Request& request, const Sources& sources);
Answer inbox_page(const Request& request, const Sources& sources);
Answer received_voice(const Request& request, const Sources& sources);

// For everybody.
Answer service_page(const Request& request, const Sources& sources);
Answer maker_page(const Request& request, const Sources& sources);
Answer find_password_page(const Request& request, const Sources& sources);
Answer sign_up_page(const Request& request, const Sources& sources);
Answer document(const Request& request, const Sources& sources);

// For the client's update check.
Answer update_page(const Request& request, const Sources& sources);
Answer current_update_list(const Request& request, const Sources& sources);
Answer due_update_list(const Request& request, const Sources& sources);
Answer update_note(const Request& request, const Sources& sources);

}  // namespace standin::site
