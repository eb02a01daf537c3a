#include "machine/posix/file_error.h"

#include <cerrno>
#include <filesystem>

namespace machine::posix {

using platform::ErrorNumber;
using platform::RuntimeError;

namespace {

ErrorNumber number_of(int code) {
    switch (code) {
        case ENOENT:
            return ErrorNumber::path_not_found;
        case EEXIST:
            return ErrorNumber::file_exists;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return ErrorNumber::disk_full;
        case ENAMETOOLONG:
        case EILSEQ:
            return ErrorNumber::bad_file_name;
        default:
            return ErrorNumber::path_access;
    }
}

}  // namespace

RuntimeError file_error(int code, const std::string& path) {
    std::error_code ignored;
    if (code == EACCES || code == EPERM || code == EROFS) return RuntimeError(ErrorNumber::permission_denied);
    if (code == ENOENT && std::filesystem::is_directory(std::filesystem::path(path).parent_path(), ignored)) {
        return RuntimeError(ErrorNumber::file_not_found);
    }
    return RuntimeError(number_of(code));
}

RuntimeError folder_error(int code) { return RuntimeError(number_of(code)); }

}  // namespace machine::posix
