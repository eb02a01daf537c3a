#include "core/saved_texts_folder.h"

#include "core/work_folders.h"
#include "platform/error.h"
#include "platform/file_name.h"
#include "platform/text/cp949.h"

namespace core {

using platform::Platform;
using platform::Text;
using platform::TextView;

Text saved_texts_root(const Platform& platform) {
    return platform.files.application_directory() + u"\\내모음함\\";
}

Text category_folder(const Platform& platform, TextView category) {
    return saved_texts_root(platform) + Text(category) + u"\\";
}

Text saved_text_path(const Platform& platform, TextView category, TextView title) {
    return category_folder(platform, category) + Text(title) + Text(SAVED_TEXT_EXTENSION);
}

void make_saved_texts_folders(Platform& platform) {
    make_folder_when_missing(platform, saved_texts_root(platform));
    make_folder_when_missing(platform, category_folder(platform, DEFAULT_CATEGORY));
}

void check_category(const Platform& platform, TextView category) {
    if (!platform.files.is_link(category_folder(platform, category))) return;
    throw platform::RuntimeError(
        platform::ErrorNumber::path_access,
        u"'" + Text(category) + u"' 분류는 내 모음함 밖으로 연결된 폴더이므로 사용할 수 없습니다.");
}

void check_saved_text_name(const Platform& platform, TextView category, TextView title) {
    check_category(platform, category);
    platform::check_file_name(Text(title) + Text(SAVED_TEXT_EXTENSION));
}

void write_saved_text(Platform& platform, TextView category, TextView title, TextView body) {
    check_saved_text_name(platform, category, title);
    platform.files.write(saved_text_path(platform, category, title), platform::encode_cp949(body));
}

}  // namespace core
