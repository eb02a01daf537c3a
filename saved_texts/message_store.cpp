#include "saved_texts/message_store.h"

#include "core/message_box.h"
#include "platform/text/cp949.h"

#include <algorithm>

namespace saved_texts {

using platform::ErrorNumber;
using platform::FileEntry;
using platform::Platform;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// Editors of other systems end a line with one character, which the program's own fields do not know.
Text with_whole_line_ends(TextView text) {
    Text whole = platform::replace_all(text, platform::CRLF, u"\n");
    std::ranges::replace(whole, u'\r', u'\n');
    return platform::replace_all(whole, u"\n", platform::CRLF);
}

}  // namespace

std::vector<Text> categories(const Platform& platform) {
    std::vector<Text> names{Text(core::DEFAULT_CATEGORY)};
    for (Text& folder : platform.files.list_folders(core::message_box_root(platform))) {
        if (folder != core::DEFAULT_CATEGORY) names.push_back(std::move(folder));
    }
    return names;
}

CategoryContent read_category(const Platform& platform, TextView category,
                              const std::function<void()>& between) {
    core::check_category(platform, category);
    const Text folder = core::category_folder(platform, category);
    CategoryContent content;
    for (const FileEntry& file : platform.files.list_files(folder, u"*" + Text(core::MESSAGE_EXTENSION))) {
        try {
            const Text title = file.name.substr(0, file.name.size() - core::MESSAGE_EXTENSION.size());
            const Text body = platform::decode_cp949(platform.files.read(folder + file.name));
            content.messages.push_back({title, with_whole_line_ends(body), file.modified});
        } catch (const RuntimeError& error) {
            // One that has been removed meanwhile is simply gone.
            if (error.number() != static_cast<int>(ErrorNumber::file_not_found) && !content.failure)
                content.failure.emplace(static_cast<ErrorNumber>(error.number()),
                                        u"'" + file.name + u"': " + error.description());
        }
        between();
    }
    return content;
}

}  // namespace saved_texts
