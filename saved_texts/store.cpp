#include "saved_texts/store.h"

#include "core/saved_texts_folder.h"
#include "platform/file_name.h"
#include "platform/text/cp949.h"

namespace saved_texts {

using platform::ErrorNumber;
using platform::FileEntry;
using platform::Platform;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// The most bytes of a saved text; a message has far fewer.
constexpr std::uint64_t SAVED_TEXT_LIMIT = 1 << 20;

/// Editors of other systems end a line with one character, which the program's own fields do not know.
Text with_whole_line_ends(TextView text) {
    return platform::replace_all(platform::with_line_feeds(text), u"\n", platform::CRLF);
}

/// The file's name with marks in the place of what no text can show.
Text shown_name(const FileEntry& file) { return platform::from_utf8(platform::to_utf8(file.name)); }

Text without(TextView text, TextView characters) {
    Text left(text);
    std::erase_if(left, [&](char16_t unit) { return characters.find(unit) != TextView::npos; });
    return left;
}

}  // namespace

std::vector<Text> categories(const Platform& platform) {
    std::vector<Text> names{Text(core::DEFAULT_CATEGORY)};
    for (Text& folder : platform.files.list_folders(core::saved_texts_root(platform))) {
        if (folder != core::DEFAULT_CATEGORY) names.push_back(std::move(folder));
    }
    return names;
}

CategoryContent read_category(const Platform& platform, TextView category,
                              const std::function<void()>& between) {
    core::check_category(platform, category);
    const Text folder = core::category_folder(platform, category);
    CategoryContent content;
    for (const FileEntry& file : platform.files.list_files(folder, u"*" + Text(core::SAVED_TEXT_EXTENSION))) {
        try {
            Text title = shown_name(file);
            title.resize(title.size() - core::SAVED_TEXT_EXTENSION.size());
            const Text body =
                platform::decode_cp949(platform.files.read(folder + file.name, SAVED_TEXT_LIMIT));
            content.texts.push_back({file.name, title, with_whole_line_ends(body), file.modified});
        } catch (const RuntimeError& error) {
            // One that has been removed meanwhile is simply gone.
            if (error.number() != static_cast<int>(ErrorNumber::file_not_found) && !content.failure)
                content.failure.emplace(static_cast<ErrorNumber>(error.number()),
                                        u"'" + shown_name(file) + u"': " + error.description());
        }
        between();
    }
    return content;
}

Text in_one_line(TextView body) { return platform::trim(platform::replace_all(body, platform::CRLF, u" ")); }

Text clean_title(TextView typed) { return without(typed, Text(platform::FORBIDDEN_IN_NAMES) + u"."); }

Text clean_category(TextView typed) { return platform::trim(without(typed, platform::FORBIDDEN_IN_NAMES)); }

}  // namespace saved_texts
