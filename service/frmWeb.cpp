#include "service/frmWeb.h"

#include "core/files.h"
#include "core/windows.h"
#include "platform/error.h"
#include "platform/file_name.h"

#include <algorithm>
#include <iterator>

namespace service {

using platform::FileEnd;
using platform::Text;
using platform::TextView;

namespace {

/// What faxes, voices, results and documents come as: data, which nothing runs.
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
    WebBrowser.FileOffered.connect([this](platform::PageFile& file) { WebBrowser_FileOffered(file); });
    WebBrowser.FileReceived.connect(
        [this](std::int64_t bytes, std::int64_t size) { WebBrowser_FileReceived(bytes, size); });
    WebBrowser.FileEnded.connect([this](FileEnd end) { WebBrowser_FileEnded(end); });
}

frmWeb::~frmWeb() {
    if (state_.frmWeb == this) state_.frmWeb = nullptr;
}

void frmWeb::Form_Load() {
    move({.width = 12000, .height = 9000});
    core::CENTER_FORM(platform_.desktop, *this);
    state_.gWebFormOpen = true;
    state_.frmWeb = this;
}

void frmWeb::Form_Activate() { state_.gWebFormOpen = true; }

void frmWeb::Form_Unload() {
    state_.gWebFormOpen = false;
    state_.frmWeb = nullptr;
}

void frmWeb::WebBrowser_FileOffered(platform::PageFile& file) {
    const Text name = platform::clean_file_name(file.name);
    const Text ending = ending_of(name);
    if (std::find(std::begin(ENDINGS), std::end(ENDINGS), ending) == std::end(ENDINGS)) {
        return Label1.set_caption(u"받을 수 없는 종류의 파일입니다. " + name);
    }
    Label1.set_caption(u"");
    Cmd1.set_up(u"파일 저장", ending + u" 파일|*." + ending, name);
    platform::ignore_errors([&] {
        if (core::choose_free_name(platform_, Cmd1)) file.path = Cmd1.file_name();
    });
    // The user may have been long about it.
    if (!loaded()) file.path.clear();
    if (file.path.empty()) return;
    file_name_ = core::FILE_NAME_OF(file.path);
    WebBrowser_FileReceived(0, 0);
}

void frmWeb::WebBrowser_FileReceived(std::int64_t bytes, std::int64_t size) {
    const Text much = size > 0 ? platform::decimal(std::min(bytes, size) * 100 / size) + u"%"
                               : platform::decimal(bytes / 1024) + u"KB";
    Label1.set_caption(u"파일을 받고 있습니다. " + file_name_ + u" " + much);
}

void frmWeb::WebBrowser_FileEnded(FileEnd end) {
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
