#pragma once

struct xcb_connection_t;

namespace machine::qt {

/// The program's connection to the X server; none on other desktops.
xcb_connection_t* x_server();

}  // namespace machine::qt
