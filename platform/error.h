#pragma once

#include "platform/text/text.h"

#include <exception>
#include <string>

namespace platform {

/// The numbers of the run-time errors that the program raises or shows.
enum class ErrorNumber {
    invalid_call = 5,
    overflow = 6,
    out_of_memory = 7,
    subscript_out_of_range = 9,
    division_by_zero = 11,
    type_mismatch = 13,
    bad_file_name = 52,
    file_not_found = 53,
    file_exists = 58,
    disk_full = 61,
    permission_denied = 70,
    path_access = 75,
    path_not_found = 76,
    invalid_property_value = 380,
    no_such_export = 453,
    server_unavailable = 462,
    library_not_loaded = 48,
    dialog_cancelled = 32755,
    // Errors of the card database, as its provider numbers them.
    no_current_record = 3021,
    no_such_field = 3265,
    connection_closed = 3709,
    database_unusable = -2147467259,
    wrong_database_password = -2147217843,
    broken_statement = -2147217900,
    protocol_not_supported = 35753,
    request_not_completed = 35756,
    request_timed_out = 35761,
};

/// A failure inside the system: a classic number and a Korean description, as an error box shows them.
class RuntimeError : public std::exception {
  public:
    explicit RuntimeError(ErrorNumber number);
    RuntimeError(ErrorNumber number, Text description);

    int number() const { return static_cast<int>(number_); }
    const Text& description() const { return description_; }
    const char* what() const noexcept override { return what_.c_str(); }

  private:
    ErrorNumber number_;
    Text description_;
    std::string what_;
};

/// The error that a box shows for a failure of any kind: itself when it is a RuntimeError.
RuntimeError error_of(const std::exception& failure);

/// Runs one step of a handler that goes on even if the step fails: swallows a RuntimeError, and no other
/// exception. Returns whether the step ran to its end.
template <class Step>
bool ignore_errors(Step&& step) {
    try {
        step();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

}  // namespace platform
