#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

/// One argument of a call, as the ledger keeps it. Bytes are cp949, as the caller gave them.
struct Argument {
    std::string name;
    std::string kind;                         ///< "number", "text", "password", "pointer" or "callback"
    std::optional<std::int32_t> number;       ///< only for a number
    std::optional<std::string> bytes;         ///< only for a text; nothing for NULL
    std::string shown;                        ///< only for the others: "given", "NULL", stars
    std::optional<std::string> answer;        ///< the number that the call wrote here
    std::optional<std::string> answer_bytes;  ///< the bytes that the call wrote here, with its NUL
    std::string note;
};

/// A call of one of the six operations: when, and every argument in order.
class Call {
  public:
    /// Starts the record of a call that begins now.
    explicit Call(std::string operation);

    Call& number(std::string name, std::int32_t value);
    Call& text(std::string name, const char* value);
    /// An out buffer, which may lack its NUL: at most `size` bytes of it are read.
    Call& buffer(std::string name, const char* value, std::size_t size);
    /// Keeps only the length, as stars: people read the ledger, so it must hold no passwords.
    Call& password(std::string name, const char* value);
    Call& pointer(std::string name, const void* value);
    Call& callback(std::string name, bool given);

    /// The argument of that name; std::out_of_range when the call has none.
    const Argument& argument(std::string_view name) const;
    Argument& argument(std::string_view name);

    const std::string& operation() const { return operation_; }
    /// Local time of the call's beginning, "yyyy-MM-dd HH:mm:ss.mmm".
    const std::string& time() const { return time_; }
    const std::vector<Argument>& arguments() const { return arguments_; }

    /// How many calls of this operation the process has made, this one counted.
    std::int32_t nth = 0;

  private:
    Argument& add(std::string name, const char* kind);

    std::string operation_;
    std::string time_;
    std::vector<Argument> arguments_;
};

}  // namespace standin
