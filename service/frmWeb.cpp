#include "service/frmWeb.h"

#include "core/centring.h"
#include "core/paths.h"
#include "platform/error.h"
#include "platform/file_name.h"

#include <algorithm>
#include <iterator>

namespace service {

using platform::FileEnd;
using platform::Text;
using platform::TextView;

namespace {

/// File types the service hands out. None of them is executable.
constexpr TextView ENDINGS[] = {u"wav", u"tif", u"tiff", u"pdf",  u"jpg", u"jpeg", u"png", u"gif", u"bmp",
                                u"txt", u"csv", u"xls",  u"xlsx", u"doc", u"docx", u"hwp", u"zip"};

/// The ending in small letters; empty for a name without one, or of nothing else.
Text ending_of(const Text& name) {
    const std::size_t dot = name.rfind(u'.');
    return dot == Text::npos || dot == 0 ? Text() : platform::lower_case(name.substr(dot + 1));
}

}  // namespace

frmWeb::frmWeb(platform::Platform& platform, core::AppState& state)
    : Form(platform.desktop, u"frmWeb"), platform_(platform), state_(state), Cmd1(platform.desktop) {
    Command1.Click.connect([this] { unload(); });
    WebBrowser.FileOffered.connect([this](platform::PageFile& file) { save_offered_file(file); });
    WebBrowser.FileReceived.connect(
        [this](std::int64_t bytes, std::int64_t size) { show_received(bytes, size); });
    WebBrowser.FileEnded.connect([this](FileEnd end) { show_end(end); });
}

frmWeb::~frmWeb() {
    if (state_.forms.frmWeb == this) state_.forms.frmWeb = nullptr;
}

void frmWeb::Form_Load() {
    move({.width = 12000, .height = 9000});
    core::CENTER_FORM(platform_.desktop, *this);
    state_.forms.gWebFormOpen = true;
    state_.forms.frmWeb = this;
}

void frmWeb::Form_Activate() { state_.forms.gWebFormOpen = true; }

void frmWeb::Form_Unload() {
    state_.forms.gWebFormOpen = false;
    state_.forms.frmWeb = nullptr;
}

void frmWeb::save_offered_file(platform::PageFile& file) {
    const Text name = platform::clean_file_name(file.name);
    const Text ending = ending_of(name);
    if (std::find(std::begin(ENDINGS), std::end(ENDINGS), ending) == std::end(ENDINGS)) {
        return Label1.set_caption(u"받을 수 없는 종류의 파일입니다. " + name);
    }
    Label1.set_caption(u"");
    Cmd1.set_up(u"파일 저장", ending + u" 파일|*." + ending, name);
    platform::ignore_errors([&] {
        if (Cmd1.choose_free_name(platform_.files)) file.path = Cmd1.file_name();
    });
    // The page may have been closed while the user chose a place.
    if (!loaded()) file.path.clear();
    if (file.path.empty()) return;
    file_name_ = core::FILE_NAME_OF(file.path);
    show_received(0, 0);
}

void frmWeb::show_received(std::int64_t bytes, std::int64_t size) {
    const Text much = size > 0 ? platform::decimal(std::min(bytes, size) * 100 / size) + u"%"
                               : platform::decimal(bytes / 1024) + u"KB";
    Label1.set_caption(u"파일을 받고 있습니다. " + file_name_ + u" " + much);
}

void frmWeb::show_end(FileEnd end) {
    switch (end) {
        case FileEnd::whole:
            return Label1.set_caption(u"파일을 저장하였습니다. " + file_name_);
        case FileEnd::broken:
            return Label1.set_caption(u"파일을 저장하지 못하였습니다. 다시 받아 주십시오. " + file_name_);
        case FileEnd::too_large:
            return Label1.set_caption(u"파일이 너무 커서 받을 수 없습니다. (최대 " +
                                      platform::decimal(platform::WebBrowser::LARGEST_FILE >> 20) + u"MB)");
    }
}

}  // namespace service
