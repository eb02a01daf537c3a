// Saving the present text into the box of saved texts.

#include "compose/main_form.h"
#include "core/boxes.h"
#include "core/paths.h"
#include "core/saved_texts_folder.h"
#include "platform/error.h"

namespace compose {

using platform::Text;

namespace {

constexpr int MOST_NAMES = 200;

}  // namespace

void frmZent::MySave_Click() {
    core::make_saved_texts_folders(platform_);
    txtUserName.set_text(platform::trim(txtUserName.text()));

    const Text body = platform::trim(platform::remove_all(mText1.text(), sender_tag()));
    if (body.empty()) {
        core::warn(platform_.desktop, u"메시지 내용을 입력하세요!");
        mText1.set_focus();
        return;
    }
    subjectText_CHECK();

    const Text subject = subjectText.text();
    Text title = subject;
    try {
        // Asked for first: a wildcard in the subject would find other texts below.
        core::check_saved_text_name(platform_, core::DEFAULT_CATEGORY, subject);
        for (int i = 1;
             core::FILE_EXISTS(platform_, core::saved_text_path(platform_, core::DEFAULT_CATEGORY, title));
             ++i) {
            title = subject + platform::decimal(i);
            if (i > MOST_NAMES) {
                platform_.desktop.message_box({.text = u"'" + title + u"' 제목은 이미 존재하고 있습니다."});
                return;
            }
        }
        core::write_saved_text(platform_, core::DEFAULT_CATEGORY, title, body);
    } catch (const platform::RuntimeError& error) {
        core::show_error(platform_.desktop, error, platform::BoxIcon::critical);
        return;
    }
    platform_.desktop.message_box({.text = u"내 모음함에 '" + title + u"' 제목으로 등록 되었습니다.",
                                   .icon = platform::BoxIcon::information});
}

}  // namespace compose
