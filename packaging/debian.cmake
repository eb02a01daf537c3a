# The Debian packages and what their tools want to find in them.
execute_process(COMMAND date -u -R -d ${release_date} OUTPUT_VARIABLE release_time OUTPUT_STRIP_TRAILING_WHITESPACE)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
foreach(component messaging pages sound demo)
  set(deb_package ${package})
  if(NOT component STREQUAL "messaging")
    string(APPEND deb_package -${component})
  endif()
  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${deb_package})
  configure_file(changelog.in changelog-${component} @ONLY)
  install_packed(${CMAKE_CURRENT_BINARY_DIR}/changelog-${component} ${documents}/changelog.Debian ${component})
  install_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${documents}/changelog ${component})
  install(FILES copyright DESTINATION ${documents} COMPONENT ${component})

  string(TOUPPER ${component} C)
  set(CPACK_DEBIAN_${C}_PACKAGE_NAME ${deb_package})
  set(CPACK_DEBIAN_${C}_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_${C}_PACKAGE_SECTION comm)
  if(NOT component STREQUAL "messaging")
    set(CPACK_DEBIAN_${C}_PACKAGE_DEPENDS "${package} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
  endif()
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${package})
set(CPACK_PACKAGE_VENDOR Cardvale)
set(CPACK_PACKAGE_CONTACT "Cardvale <support@cardvale.example>")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_COMPONENTS_ALL messaging pages sound demo)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${ZENT_MAKER_SITE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# The program works without pages and sound and says then which package it wants; a machine that only sends texts can
# leave out the web engine, which is much larger than everything else.
set(CPACK_DEBIAN_MESSAGING_PACKAGE_DEPENDS "xdg-utils")
set(CPACK_DEBIAN_MESSAGING_PACKAGE_RECOMMENDS
  "${package}-pages, ${package}-sound, fonts-nanum | fonts-noto-cjk, at-spi2-core, qt6-wayland")
set(CPACK_DEBIAN_MESSAGING_PACKAGE_SUGGESTS "${demo}, ibus-hangul | fcitx5-hangul")
set(CPACK_DEBIAN_SOUND_PACKAGE_RECOMMENDS "gstreamer1.0-plugins-good, gstreamer1.0-pulseaudio")
set(CPACK_DEBIAN_DEMO_PACKAGE_RECOMMENDS "${package}-pages, ${package}-sound")

set(CPACK_COMPONENT_MESSAGING_DESCRIPTION "messaging client for Korean business users
Sends texts, texts with voice, voice messages and faxes to the people of a
card database, or to typed and pasted numbers, through a telephone carrier's
messaging service. Everything on its screens is in Korean.

The carrier's library is not part of it: /usr/local/lib/cardvale-messaging is
the folder for it.")
set(CPACK_COMPONENT_PAGES_DESCRIPTION "messaging client for Korean business users - service's web pages
Shows the pages of the messaging service in a window of the program: results,
charges, received messages and member data.")
set(CPACK_COMPONENT_SOUND_DESCRIPTION "messaging client for Korean business users - recording and playing
Lets the program record a voice message with the microphone and play it.")
set(CPACK_COMPONENT_DEMO_DESCRIPTION "messaging client for Korean business users - demonstration
The program with a double of the carrier and of its web site, an account
and a card database of invented people. Nothing leaves the machine.")
include(CPack)
