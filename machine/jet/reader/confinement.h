#pragma once

namespace machine::jet {

/// Leaves this process reading and writing its open files, memory and its end. Whatever else it asks of the
/// system from now on (a file's name, a socket, another program) ends it at once, as a crash does.
void confine_to_open_files();

}  // namespace machine::jet
