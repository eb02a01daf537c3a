#pragma once

#include "platform/boolean_word.h"
#include "platform/controls/list_view.h"
#include "platform/ports/platform.h"
#include "platform/text/text.h"

#include <cstdint>
#include <memory>

namespace service {
class frmWeb;
}

namespace core {

/// What the user sees as the program's name.
inline constexpr platform::TextView APPLICATION_TITLE = u"Cardvale 폰디라 통합메시징 서비스";

/// The service number until the carrier has sent another one.
inline constexpr platform::TextView UNKNOWN_SERVICE_NUMBER = u"03030xxxxxxx";

/// Kinds of service contract (`gServiceType`): the two that the system is for, and one that its users have to
/// give up first.
inline constexpr std::int32_t SERVICE_PRO = 23;
inline constexpr std::int32_t SERVICE_PARTNER = 24;
inline constexpr std::int32_t SERVICE_POP = 25;

/// The highest state of the contract (`gServiceState`) in which the service may be used.
inline constexpr std::int32_t LAST_USABLE_STATE = 1;

/// The state of the contract that counts as "not to be used"; also what stands while nobody is logged in.
inline constexpr std::int32_t SERVICE_STATE_NONE = 3;

/// Who is logged in, and what goes to the carrier and comes from it. The login writes it, the gateway and the
/// service's pages read it.
struct Session {
    platform::BooleanWord gLoggedIn;
    /// The last login form ended with an accepted login.
    platform::BooleanWord gLoginResult;
    /// 1 once a login has passed all checks. Written with the other marks of a login and read by nothing.
    std::int16_t gLoginAccepted = 0;
    platform::Text gLoginUserId;
    /// Each submit begins with it anew.
    platform::Text gLoginPassword;
    platform::Text gServiceNumber{UNKNOWN_SERVICE_NUMBER};
    platform::Text gServiceDomain;
    platform::Text gClientAddress;

    // Out buffers of the carrier, padded; read through CLEAN_FIXED_TEXT or a trim.
    platform::Text gInfoServiceNumber{UNKNOWN_SERVICE_NUMBER};
    platform::Text gInfoUserName;
    platform::Text gInfoSenderName;
    platform::Text gInfoCallback;

    // The account's status in the carrier's order. What the fields with a number mean is the carrier's
    // secret; they are handed back as they came.
    std::int32_t gMoneyField1 = 0;
    std::int32_t gServiceType = 0;
    std::int32_t gServiceState = SERVICE_STATE_NONE;
    std::int32_t gMoneyField4 = 0;
    std::int32_t gMoneyField5 = 0;

    // Through whom the service is sold, which its pages ask for.
    platform::Text gPartnerPath;
    platform::Text gPartnerCode;
    platform::Text gPartnerSubCode;

    /// Running number of a submit.
    std::int32_t gSubmitSequence = 0;
};

/// The sender as the settings had it at the start and after each login.
struct SavedSender {
    platform::Text gSavedSenderName;
    platform::Text gSavedCallback;
};

/// Where the main window was the last time, numbers as texts, and how small it can be made in pixels.
struct MainWindow {
    platform::Text gWinMax;
    platform::Text gWinTop;
    platform::Text gWinLeft;
    platform::Text gWinWidth;
    platform::Text gWinHeight;
    std::int32_t gMinTrackX = 0;
    std::int32_t gMinTrackY = 0;
};

/// The card manager's database.
struct CardDatabase {
    /// The open connection, or none.
    std::unique_ptr<platform::CardConnection> gCardDb;
    /// How the user has sorted the cards, for the next opening: the column, and the order.
    platform::Text sort_column;
    platform::ListView::SortOrder sort_order = platform::ListView::SortOrder::ascending;
};

/// Which other windows are open, and what the last one answered.
struct OpenForms {
    platform::BooleanWord gSendFormOpen;
    platform::BooleanWord gWebFormOpen;
    /// The form of the service's pages that is open, or none: there is never a second one.
    service::frmWeb* frmWeb = nullptr;
    /// The answer of the last dialog that asks yes or no.
    platform::BooleanWord gDialogConfirmed;
};

/// What the last update check found.
struct Update {
    /// The window of the check is open. Nothing here reads it, as the window is modal.
    platform::BooleanWord gUpdateFormOpen;
    platform::BooleanWord gUpdateServerReached;
    /// At least one listed file is out of date.
    platform::BooleanWord gUpdateAvailable;
    /// A file that is out of date carries the marker "ums".
    platform::BooleanWord gUpdateUmsFlag;
    /// The same for the marker "i".
    platform::BooleanWord gUpdateIFlag;
    /// Address of the page about what is new.
    platform::Text gUpdateNoteFile;
};

/// The variables that the forms share. There is one of these in the process; every form gets it and reads and
/// writes it.
struct AppState {
    Session session;
    SavedSender sender;
    MainWindow window;
    CardDatabase cards;
    OpenForms forms;
    Update update;
};

/// Reads the saved sender from the settings.
void read_saved_sender(const platform::Platform& platform, AppState& state);

}  // namespace core
