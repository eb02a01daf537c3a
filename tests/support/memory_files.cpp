#include "tests/support/memory_files.h"

#include <algorithm>

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;

namespace {

Text key(const Text& path) {
    Text folded = platform::lower_case(path);
    while (folded.ends_with(u'\\')) folded.pop_back();
    return folded;
}

}  // namespace

bool MemoryFiles::file_exists(const Text& path) const {
    const Text folded = key(path);
    if (!folded.ends_with(u'*')) return files.contains(folded);
    const Text beginning = folded.substr(0, folded.find(u'*'));
    return std::ranges::any_of(files, [&](const auto& file) { return file.first.starts_with(beginning); });
}

bool MemoryFiles::folder_exists(const Text& path) const { return folders.contains(key(path)); }

std::uint64_t MemoryFiles::length(const Text& path) const { return read(path).size(); }

std::string MemoryFiles::read(const Text& path) const {
    const auto file = files.find(key(path));
    if (file == files.end()) throw RuntimeError(ErrorNumber::file_not_found);
    return file->second;
}

void MemoryFiles::write(const Text& path, const std::string& bytes) {
    fail_when_told();
    files[key(path)] = bytes;
}

void MemoryFiles::remove(const Text& path) {
    fail_when_told();
    if (files.erase(key(path)) == 0) throw RuntimeError(ErrorNumber::file_not_found);
}

void MemoryFiles::make_folder(const Text& path) {
    fail_when_told();
    folders.insert(key(path));
}

void MemoryFiles::remove_folder(const Text& path) {
    fail_when_told();
    const Text inside = key(path) + u"\\";
    std::erase_if(files, [&](const auto& file) { return file.first.starts_with(inside); });
    std::erase_if(folders,
                  [&](const Text& folder) { return folder == key(path) || folder.starts_with(inside); });
}

void MemoryFiles::fail_when_told() const {
    if (failure) throw RuntimeError(*failure);
}
