# The programs read foreign bytes: an overrun buffer must end them, not take them over. `hardening-check` tells what of this
# a program has.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_link_options(-Wl,-z,relro,-z,now -Wl,-z,noexecstack)

# Checked copies need the optimiser; the sanitizers check more, with routines of their own.
if(NOT ZENT_SANITIZE)
  set(hardening -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  add_compile_options("$<$<NOT:$<CONFIG:Debug>>:${hardening}>")
endif()
