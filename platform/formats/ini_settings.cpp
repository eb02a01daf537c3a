#include "platform/formats/ini_settings.h"

#include "platform/error.h"
#include "platform/formats/ini_document.h"
#include "platform/text/cp949.h"

namespace platform {

namespace {

/// A settings file has a few lines. One of more bytes is not the program's own and counts as unreadable.
constexpr std::uint64_t SETTINGS_LIMIT = 1 << 20;

bool is_missing(const RuntimeError& error) {
    return error.number() == static_cast<int>(ErrorNumber::file_not_found) ||
           error.number() == static_cast<int>(ErrorNumber::path_not_found);
}

/// The file's bytes; none when there is no file yet.
std::string read_to_change(const Files& files, const Text& path) {
    try {
        return files.read(path, SETTINGS_LIMIT);
    } catch (const RuntimeError& error) {
        if (!is_missing(error)) throw;
        return {};
    }
}

}  // namespace

std::string IniSettings::read(const Text& path, const std::string& section, const std::string& key,
                              std::size_t limit) const {
    std::string bytes;
    ignore_errors([&] { bytes = files_.read(path, SETTINGS_LIMIT); });
    return cut_bytes(ini::read(bytes, section, key).value_or(""), limit);
}

void IniSettings::write(const Text& path, const std::string& section, const std::string& key,
                        const std::string& value) {
    const std::string before = read_to_change(files_, path);
    const std::string after = ini::write(before, section, key, value);
    if (after == before) return;
    try {
        files_.write(path, after);
    } catch (const RuntimeError&) {
        if (!value.empty() || after.size() > before.size()) throw;
        // A password that has to go is blanked where it stands; all other bytes stay the same.
        const auto file = files_.open_for_writing(path);
        file->write(ini::write(before, section, key, std::string(before.size() - after.size(), ' ')));
        file->flush();
    }
}

}  // namespace platform
