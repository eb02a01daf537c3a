#pragma once

#include "platform/ports/platform.h"
#include "platform/text/text.h"

#include <cstdint>

namespace core {

/// The files of settings. All but the login lie in the application directory.
enum class SettingsFile : std::uint8_t {
    /// "zent.ini": everything but the login.
    application,
    /// "zent.ini" of the Windows directory: the login's id and password, away from the program's folder.
    login,
    /// "urllink.ini": where the service's pages are. The installation brings it; nothing here writes it.
    links,
};

/// One line of a settings file.
struct Setting {
    SettingsFile file;
    platform::TextView section;
    platform::TextView key;
    /// What counts when the line is missing or empty.
    platform::TextView unset = {};
};

/// Every setting there is.
namespace settings {

using enum SettingsFile;

inline constexpr Setting AUTO_LOGIN{application, u"LOGIN", u"AUTOLOGIN"};
inline constexpr Setting LOGIN_ID{login, u"LOGIN", u"LOGINID"};
inline constexpr Setting LOGIN_PASSWORD{login, u"LOGIN", u"LOGINPW"};

inline constexpr Setting SENDER_NAME{application, u"SET", u"ZentUserNickName"};
inline constexpr Setting SENDER_NUMBER{application, u"SET", u"ZentUserPhoneID"};
/// The same line as SENDER_NUMBER, for a key is found in either case. It is spelled so when the user leaves
/// the field and as above when the program ends; the file keeps the spelling that came first.
inline constexpr Setting SENDER_NUMBER_LEFT{application, u"SET", u"ZENTUserPhoneID"};

/// The menu's check mark for a check at the start. It is kept and never read: no check runs at the start.
inline constexpr Setting UPDATE_CHECK_AT_START{application, u"SET", u"STARTUPDATECHECK"};

/// The characters that were inserted last, with "|" between them.
inline constexpr Setting RECENT_CHARACTERS{application, u"SET", u"RECENTCHARACTERS"};

/// The least lead of a schedule in minutes, and its row in the list that the user chooses it from.
inline constexpr Setting SCHEDULE_LEAD{application, u"SET", u"P_TIME", u"30"};
inline constexpr Setting SCHEDULE_LEAD_ROW{application, u"SET", u"P_TIME_SET", u"2"};

// Where the main window was: its state as a number, the others in twips.
inline constexpr Setting WINDOW_STATE{application, u"WINDOW SIZE", u"M_MAX"};
inline constexpr Setting WINDOW_LEFT{application, u"WINDOW SIZE", u"M_LEFT"};
inline constexpr Setting WINDOW_TOP{application, u"WINDOW SIZE", u"M_TOP"};
inline constexpr Setting WINDOW_WIDTH{application, u"WINDOW SIZE", u"M_WIDTH"};
inline constexpr Setting WINDOW_HEIGHT{application, u"WINDOW SIZE", u"M_HEIGHT"};

// Addresses of the service's pages.
inline constexpr Setting LINK_HOME{links, u"URL", u"HOME"};
inline constexpr Setting LINK_SERVICE{links, u"URL", u"KTPONDIRA"};
inline constexpr Setting LINK_FIND_LOGIN{links, u"URL", u"IDPASSFIND"};
inline constexpr Setting LINK_RESULTS{links, u"URL", u"RESULT"};
inline constexpr Setting LINK_CHARGES{links, u"URL", u"MONEY"};
inline constexpr Setting LINK_MEMBER_DATA{links, u"URL", u"MEMEDIT"};
inline constexpr Setting LINK_INBOX{links, u"URL", u"INBOX"};

}  // namespace settings

/// The value as the file has it at this moment, or what counts without one.
platform::Text read_setting(const platform::Platform& platform, const Setting& setting);

/// Whether the value's number is 1, as in "1", "1.0" and "1abc".
bool setting_is_on(const platform::Platform& platform, const Setting& setting);

/// Writes the line. A failed write is silent.
void write_setting(platform::Platform& platform, const Setting& setting, platform::TextView value);

}  // namespace core
