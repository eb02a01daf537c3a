#include "trials/moments.h"

#include <csignal>
#include <sqlite3.h>
#include <sys/types.h>
#include <unistd.h>

namespace trials {

namespace {

sqlite3_syscall_ptr real_write, real_unlink, real_truncate;

ssize_t moment_write(int file, const void* bytes, std::size_t size, off_t at) {
    killer.moment();
    return reinterpret_cast<ssize_t (*)(int, const void*, std::size_t, off_t)>(real_write)(file, bytes, size,
                                                                                           at);
}
int moment_sync(int file) {
    killer.moment();
    return ::fsync(file);
}
int moment_unlink(const char* path) {
    killer.moment();
    return reinterpret_cast<int (*)(const char*)>(real_unlink)(path);
}
int moment_truncate(int file, off_t size) {
    killer.moment();
    return reinterpret_cast<int (*)(int, off_t)>(real_truncate)(file, size);
}

}  // namespace

void Killer::moment() {
    if (++moments == deadly) ::kill(::getpid(), SIGKILL);
}

void watch_file_operations() {
    sqlite3_vfs* vfs = sqlite3_vfs_find(nullptr);
    const auto watch = [vfs](const char* name, auto* moment) {
        const sqlite3_syscall_ptr real = vfs->xGetSystemCall(vfs, name);
        vfs->xSetSystemCall(vfs, name, reinterpret_cast<sqlite3_syscall_ptr>(moment));
        return real;
    };
    watch("fsync", moment_sync);
    watch("pwrite", moment_write);
    real_write = watch("pwrite64", moment_write);
    real_unlink = watch("unlink", moment_unlink);
    real_truncate = watch("ftruncate", moment_truncate);
}

}  // namespace trials
