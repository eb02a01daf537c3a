#include "update/frmUpdate.h"

#include "core/centring.h"
#include "core/ini_file.h"
#include "core/paths.h"
#include "core/work_folders.h"
#include "platform/error.h"
#include "update/manifest.h"

#include <algorithm>

namespace update {

using platform::BooleanWord;
using platform::Text;
using platform::TextView;

namespace {

/// Entries of a list behind this many are ignored.
constexpr int MOST_FILES = 100;

/// A server that sends anything of its page is reached; so much of it is read.
constexpr std::size_t ANSWER_LOOKED_AT = 1024;

/// A file that the installer makes and removes: its absence says nothing.
constexpr TextView TEMPORARY_FILE = u"temp_update.exe";

/// Deliberately only compared and asked for, never opened: what a server writes here may point anywhere.
Text target_path(const platform::Platform& platform, const platform::ListItem& file) {
    const Text& kind = file.sub_item(TARGET_KIND);
    const Text trimmed = platform::trim(kind);
    Text folder = platform.files.application_directory();
    if (platform::equal_without_case(trimmed, u"windir")) {
        folder = core::WINDOWS_DIR(platform);
    } else if (platform::equal_without_case(trimmed, u"winsysdir")) {
        folder = core::SYSTEM_DIR(platform);
    } else if (!platform::equal_without_case(trimmed, u"apppath")) {
        folder += u"\\" + kind;
    }
    Text path = folder + u"\\" + file.sub_item(FILE_NAME);
    // Lists are written with the slashes of web addresses, under which no file would ever be found.
    std::ranges::replace(path, u'/', u'\\');
    return path;
}

}  // namespace

frmUpdate::frmUpdate(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmUpdate"),
      ListView2({{.caption = u"웹사이트주소"},
                 {.caption = u"다운로드 위치"},
                 {.caption = u"다운로드 파일명"},
                 {.caption = u"버전"},
                 {.caption = u"REG등록여부"},
                 {.caption = u"파일형태"},
                 {.caption = u"vo/ums구분"},
                 {.caption = u""},
                 {.caption = u"버전확인"},
                 {.caption = u"다운로드 성공"}}),
      DownLoad1(platform),
      Inet1(platform.internet.make_transfer()),
      Timer1(platform.clock, 1),
      platform_(platform),
      state_(state) {
    set_caption(u"프로그램 업데이트 확인");
    Picture1.set_border(false);
    Timer1.Tick.connect([this] { check_and_close(); });
}

void frmUpdate::Form_Load() {
    core::CENTER_FORM(platform_.desktop, *this);
    state_.update.gUpdateFormOpen = true;
    state_.update.gUpdateUmsFlag = false;
    state_.update.gUpdateIFlag = false;
    TEMP_ALL_DEL();
}

void frmUpdate::Form_Activate() {
    if (!Timer1.tag().empty()) return;
    Timer1.set_tag(u"OK");
    Timer1.set_enabled(true);
}

void frmUpdate::Form_Unload() {
    Timer1.set_enabled(false);
    TEMP_ALL_DEL();
    state_.update.gUpdateFormOpen = false;
}

void frmUpdate::Form_Close() {
    given_up_ = true;
    if (!running_) return unload();
    // check_and_close, which waits for one of these, closes the window.
    Inet1->cancel();
    DownLoad1.Cancel();
}

void frmUpdate::check_and_close() {
    Timer1.set_enabled(false);
    running_ = true;
    if (!platform::ignore_errors([this] { check(); }) || given_up_) {
        state_.update.gUpdateServerReached = false;
        state_.update.gUpdateAvailable = false;
    }
    TEMP_ALL_DEL();
    unload();
}

void frmUpdate::check() {
    const Text server = read_fact(platform_, version_ini(platform_), HTTP_SERVER);
    state_.update.gUpdateServerReached = !Inet1->open_url(server, ANSWER_LOOKED_AT).empty();
    state_.update.gUpdateAvailable = state_.update.gUpdateServerReached && DOWN_UPDATE_INI();
}

BooleanWord frmUpdate::DOWN_UPDATE_INI() {
    state_.update.gUpdateUmsFlag = false;
    state_.update.gUpdateIFlag = false;
    ListView2.clear();
    const Text facts = version_ini(platform_);
    if (!core::FILE_EXISTS(platform_, facts)) return false;
    const Text address = read_fact(platform_, facts, LIST_ADDRESS);
    if (platform::trim(address).empty()) return false;
    platform_.desktop.yield();
    if (!given_up_) fetch_ini(address);
    if (!core::FILE_EXISTS(platform_, fetched_ini())) return false;
    DOWN_UPDATE_INI_LOAD();

    const Text installed_version = read_fact(platform_, facts, INSTALLED_VERSION);
    bool due = false;
    for (std::size_t row = 0; row < ListView2.row_count(); ++row) {
        const platform::ListItem& file = ListView2.row(row);
        if (is_up_to_date(file, installed_version)) continue;
        due = true;
        const Text& marker = file.sub_item(MARKER);
        if (platform::equal_without_case(marker, u"ums")) state_.update.gUpdateUmsFlag = true;
        if (platform::equal_without_case(marker, u"i")) state_.update.gUpdateIFlag = true;
    }
    return due;
}

/// Deliberately ignores what the transfer reports: whether there is a list afterwards is what counts.
void frmUpdate::fetch_ini(const Text& address) {
    DownLoad1.set_url(address);
    const Text folder = platform_.files.application_directory() + Text(core::UPDATE_TEMP);
    if (!platform_.files.folder_exists(folder)) platform_.files.make_folder(folder);
    DownLoad1.set_save_location(fetched_ini());
    DownLoad1.GetFileInformation();
    if (!given_up_) DownLoad1.download();
}

Text frmUpdate::fetched_ini() const {
    return platform_.files.application_directory() + Text(core::UPDATE_TEMP) + u"\\update.ini";
}

void frmUpdate::DOWN_UPDATE_INI_LOAD() {
    const Text ini = fetched_ini();
    state_.update.gUpdateNoteFile = read_fact(platform_, ini, NOTE_ADDRESS);
    ListView2.clear();
    if (!core::FILE_EXISTS(platform_, ini)) return;
    for (int number = 1; number <= MOST_FILES; ++number) {
        const Text entry =
            core::INI_READ(platform_, ini, FILE_LIST, u"UPDATE_FILE(" + platform::decimal(number) + u")");
        if (platform::trim(entry).empty()) break;
        const auto fields = manifest_fields(entry);
        std::vector<Text> sub_items(fields.begin() + 1, fields.end());
        sub_items.resize(static_cast<std::size_t>(ListView2.column_count()) - 1);
        ListView2.add_row(fields[WEB_ADDRESS], std::move(sub_items));
    }
}

/// Versions are texts and compared as texts: a server writes them so that their order is their age.
bool frmUpdate::is_up_to_date(const platform::ListItem& file, const Text& installed_version) const {
    if (installed_version < file.sub_item(FILE_VERSION)) return false;
    return platform::equal_without_case(file.sub_item(FILE_NAME), TEMPORARY_FILE) ||
           core::FILE_EXISTS(platform_, target_path(platform_, file));
}

void frmUpdate::TEMP_ALL_DEL() { core::TEMP_ALL_DEL(platform_); }

}  // namespace update
