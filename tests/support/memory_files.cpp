#include "tests/support/memory_files.h"

#include "platform/file_name.h"

#include <algorithm>

using platform::ErrorNumber;
using platform::FileEntry;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// As on the disk, two backslashes in a row are one.
Text key(const Text& path) {
    Text folded = platform::lower_case(path);
    const auto both = [](char16_t left, char16_t right) { return left == u'\\' && right == u'\\'; };
    folded.erase(std::ranges::unique(folded, both).begin(), folded.end());
    while (folded.ends_with(u'\\')) folded.pop_back();
    return folded;
}

Text name_of(const Text& path) { return path.substr(path.rfind(u'\\') + 1); }

bool lies_in(const Text& path, const Text& folder) {
    const Text inside = key(folder) + u"\\";
    return path.starts_with(inside) && path.find(u'\\', inside.size()) == Text::npos;
}

}  // namespace

bool MemoryFiles::file_exists(const Text& path) const {
    const Text folded = key(path);
    const Text folder = folded.substr(0, folded.rfind(u'\\'));
    return std::ranges::any_of(files, [&](const auto& file) {
        return lies_in(file.first, folder) && platform::matches_pattern(name_of(file.first), name_of(folded));
    });
}

bool MemoryFiles::folder_exists(const Text& path) const { return folders.contains(key(path)); }

std::uint64_t MemoryFiles::length(const Text& path) const { return read(path).size(); }

bool MemoryFiles::is_link(const Text& path) const { return links.contains(key(path)); }

std::vector<FileEntry> MemoryFiles::list_files(const Text& folder, TextView pattern) const {
    fail_when_missing(folder);
    std::vector<FileEntry> found;
    for (const auto& [path, bytes] : files) {
        if (!lies_in(path, folder) || !platform::matches_pattern(name_of(path), pattern)) continue;
        const auto date = dates.find(path);
        found.push_back({name_of(path), date == dates.end() ? now : date->second});
    }
    std::ranges::sort(found, platform::name_precedes, &FileEntry::name);
    return found;
}

std::vector<Text> MemoryFiles::list_folders(const Text& folder) const {
    fail_when_missing(folder);
    std::vector<Text> found;
    for (const Text& path : folders) {
        if (lies_in(path, folder) && !links.contains(path)) found.push_back(name_of(path));
    }
    std::ranges::sort(found, platform::name_precedes);
    return found;
}

std::string MemoryFiles::read(const Text& path) const {
    touched.push_back(path);
    const auto file = files.find(key(path));
    if (file == files.end()) throw RuntimeError(ErrorNumber::file_not_found);
    return file->second;
}

void MemoryFiles::write(const Text& path, const std::string& bytes) {
    platform::check_file_name(name_of(path));
    before_change();
    touched.push_back(path);
    files[key(path)] = bytes;
}

std::unique_ptr<platform::OpenFile> MemoryFiles::open_for_writing(const Text& path) {
    class File : public platform::OpenFile {
      public:
        explicit File(std::string& bytes) : bytes_(bytes) {}
        void write(std::string_view bytes) override {
            const std::size_t covered = std::min(bytes.size(), bytes_.size() - place_);
            bytes_.replace(place_, covered, bytes);
            place_ += bytes.size();
        }
        void flush() override {}

      private:
        std::string& bytes_;
        std::size_t place_ = 0;
    };
    before_change();
    touched.push_back(path);
    return std::make_unique<File>(files[key(path)]);
}

void MemoryFiles::remove(const Text& path) {
    before_change();
    if (files.erase(key(path)) == 0) throw RuntimeError(ErrorNumber::file_not_found);
}

void MemoryFiles::remove_files(const Text& folder, TextView pattern) {
    for (const FileEntry& file : list_files(folder, pattern)) remove(key(folder) + u"\\" + file.name);
}

void MemoryFiles::make_folder(const Text& path) {
    platform::check_file_name(name_of(key(path)));
    before_change();
    folders.insert(key(path));
}

void MemoryFiles::rename_folder(const Text& from, const Text& to) {
    fail_when_missing(from);
    platform::check_file_name(name_of(key(to)));
    before_change();
    folders.erase(key(from));
    folders.insert(key(to));
    std::map<Text, std::string> moved;
    for (auto& [path, bytes] : files)
        moved[lies_in(path, from) ? key(to) + u"\\" + name_of(path) : path] = std::move(bytes);
    files = std::move(moved);
}

void MemoryFiles::remove_empty_folder(const Text& path) {
    fail_when_missing(path);
    before_change();
    if (std::ranges::any_of(files, [&](const auto& file) { return lies_in(file.first, path); }))
        throw RuntimeError(ErrorNumber::path_access);
    folders.erase(key(path));
}

void MemoryFiles::remove_folder(const Text& path) {
    before_change();
    const Text inside = key(path) + u"\\";
    std::erase_if(files, [&](const auto& file) { return file.first.starts_with(inside); });
    std::erase_if(folders,
                  [&](const Text& folder) { return folder == key(path) || folder.starts_with(inside); });
}

void MemoryFiles::fail_when_missing(const Text& folder) const {
    if (!folder_exists(folder)) throw RuntimeError(ErrorNumber::path_not_found);
}

void MemoryFiles::before_change() {
    if (changes_until_kill && (*changes_until_kill)-- == 0) throw Killed();
    if (changes_until_failure && changes_until_failure->first-- == 0)
        throw RuntimeError(changes_until_failure->second);
    if (failure) throw RuntimeError(*failure);
}
