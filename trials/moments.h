#pragma once

namespace trials {

/// Counts the moments at which the process can be killed, and kills it at one of them.
struct Killer {
    int moments = 0;
    int deadly = 0;
    void moment();
};
inline Killer killer;

/// Makes each file operation of SQLite a moment.
void watch_file_operations();

}  // namespace trials
