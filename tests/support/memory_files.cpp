#include "tests/support/memory_files.h"

#include "platform/file_name.h"

#include <algorithm>

namespace tests {

using platform::ErrorNumber;
using platform::FileEntry;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

/// As on the disk, two backslashes in a row count as one, and one at the end does not count.
Text key(Text path) {
    const auto both = [](char16_t left, char16_t right) { return left == u'\\' && right == u'\\'; };
    path.erase(std::ranges::unique(path, both).begin(), path.end());
    while (path.ends_with(u'\\')) path.pop_back();
    return path;
}

Text name_of(const Text& path) { return path.substr(path.rfind(u'\\') + 1); }
Text folder_of(const Text& path) {
    const std::size_t end = path.rfind(u'\\');
    return end == Text::npos ? Text() : path.substr(0, end);
}

/// Whether the path is somewhere below the folder.
bool lies_below(const Text& path, const Text& folder) {
    return platform::lower_case(path).starts_with(platform::lower_case(key(folder)) + u"\\");
}
bool lies_in(const Text& path, const Text& folder) {
    return platform::equal_without_case(folder_of(path), key(folder));
}

}  // namespace

bool MemoryFiles::WithoutCase::operator()(const Text& left, const Text& right) const {
    return platform::lower_case(left) < platform::lower_case(right);
}

bool MemoryFiles::file_exists(const Text& path) const {
    const Text name = name_of(path);
    return !name.empty() && std::ranges::any_of(files, [&](const auto& file) {
        return lies_in(file.first, folder_of(key(path))) &&
               platform::matches_pattern(name_of(file.first), name);
    });
}

bool MemoryFiles::folder_exists(const Text& path) const {
    const Paths standing{u"c:", application_directory(), windows_directory()};
    return folders.contains(key(path)) || standing.contains(key(path)) || holds_anything(path);
}

std::uint64_t MemoryFiles::length(const Text& path) const {
    expect_file(path);
    return files.at(key(path)).size();
}

bool MemoryFiles::is_link(const Text& path) const { return links.contains(key(path)); }

std::vector<FileEntry> MemoryFiles::list_files(const Text& folder, TextView pattern) const {
    expect_folder(folder);
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
    expect_folder(folder);
    std::vector<Text> found;
    for (const Text& path : folders) {
        if (lies_in(path, folder) && !links.contains(path)) found.push_back(name_of(path));
    }
    std::ranges::sort(found, platform::name_precedes);
    return found;
}

std::string MemoryFiles::read(const Text& path, std::uint64_t limit) const {
    touched.push_back(path);
    expect_file(path);
    const std::string& bytes = files.at(key(path));
    if (bytes.size() > limit) throw RuntimeError(ErrorNumber::out_of_memory);
    return bytes;
}

void MemoryFiles::write(const Text& path, const std::string& bytes) {
    if (!files.contains(key(path))) platform::check_file_name(name_of(path));
    expect_place_for_file(path);
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
    expect_place_for_file(path);
    before_change();
    touched.push_back(path);
    return std::make_unique<File>(files[key(path)]);
}

void MemoryFiles::remove(const Text& path) {
    expect_file(path);
    before_change();
    files.erase(key(path));
}

void MemoryFiles::rename(const Text& from, const Text& to) {
    platform::check_file_name(name_of(to));
    expect_file(from);
    expect_place_for_file(to);
    before_change();
    std::string bytes = std::move(files.at(key(from)));
    files.erase(key(from));
    files[key(to)] = std::move(bytes);
}

void MemoryFiles::remove_files(const Text& folder, TextView pattern) {
    for (const FileEntry& file : list_files(folder, pattern)) remove(key(folder) + u"\\" + file.name);
}

void MemoryFiles::make_folder(const Text& path) {
    platform::check_file_name(name_of(key(path)));
    if (folder_exists(path)) return;
    expect_place_for_folder(path);
    before_change();
    folders.insert(key(path));
}

void MemoryFiles::rename_folder(const Text& from, const Text& to) {
    platform::check_file_name(name_of(key(to)));
    if (!folder_exists(from)) throw RuntimeError(ErrorNumber::path_not_found);
    expect_place_for_folder(to);
    if (!platform::equal_without_case(key(from), key(to)) && holds_anything(to))
        throw RuntimeError(ErrorNumber::path_access);
    before_change();
    const auto moved = [&](const Text& path) {
        return lies_below(path + u"\\", from) ? key(to) + path.substr(key(from).size()) : path;
    };
    Contents moved_files;
    for (auto& [path, bytes] : files) moved_files[moved(path)] = std::move(bytes);
    files = std::move(moved_files);
    Paths moved_folders;
    for (const Text& path : folders) moved_folders.insert(moved(path));
    folders = std::move(moved_folders);
}

void MemoryFiles::remove_empty_folder(const Text& path) {
    expect_folder(path);
    if (holds_anything(path)) throw RuntimeError(ErrorNumber::path_access);
    before_change();
    folders.erase(key(path));
}

void MemoryFiles::remove_folder(const Text& path) {
    expect_folder(path);
    before_change();
    std::erase_if(files, [&](const auto& file) { return lies_below(file.first, path); });
    std::erase_if(folders, [&](const Text& folder) { return lies_below(folder + u"\\", path); });
}

bool MemoryFiles::holds_anything(const Text& folder) const {
    return std::ranges::any_of(folders, [&](const Text& path) { return lies_below(path, folder); }) ||
           std::ranges::any_of(files, [&](const auto& file) { return lies_below(file.first, folder); });
}

void MemoryFiles::expect_folder(const Text& path) const {
    if (folder_exists(path)) return;
    throw RuntimeError(files.contains(key(path)) ? ErrorNumber::path_access : ErrorNumber::path_not_found);
}

void MemoryFiles::expect_file(const Text& path) const {
    if (files.contains(key(path))) return;
    if (folder_exists(path)) throw RuntimeError(ErrorNumber::path_access);
    expect_folder(folder_of(key(path)));
    throw RuntimeError(ErrorNumber::file_not_found);
}

void MemoryFiles::expect_place_for_file(const Text& path) const {
    if (folder_exists(path)) throw RuntimeError(ErrorNumber::path_access);
    expect_folder(folder_of(key(path)));
}

void MemoryFiles::expect_place_for_folder(const Text& path) const {
    if (files.contains(key(path))) throw RuntimeError(ErrorNumber::path_access);
    expect_folder(folder_of(key(path)));
}

void MemoryFiles::before_change() {
    if (changes_until_kill && (*changes_until_kill)-- == 0) throw Killed();
    if (changes_until_failure && changes_until_failure->first-- == 0)
        throw RuntimeError(changes_until_failure->second);
    if (failure) throw RuntimeError(*failure);
}

}  // namespace tests
