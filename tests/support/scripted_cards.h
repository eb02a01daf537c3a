#pragma once

#include "platform/error.h"
#include "platform/ports/card_source.h"

#include <functional>
#include <optional>
#include <vector>

namespace tests {

/// The result of a statement: the names of its columns, and rows of as many fields.
struct ScriptedRows {
    std::vector<platform::Text> columns;
    std::vector<std::vector<platform::CardField>> rows;
};

inline platform::CardField card_number(std::int32_t value) { return {platform::FIELD_LONG, value}; }
inline platform::CardField card_text(platform::Text value) {
    return {platform::FIELD_TEXT, std::move(value)};
}
inline platform::CardField card_null(int type = platform::FIELD_TEXT) { return {type, {}}; }

/// A card database that records its statements and gives the answers that the test sets. It must outlive its
/// connections.
class ScriptedCards : public platform::CardSource {
  public:
    /// Returns the result for a statement's text, or raises a RuntimeError. By default there are no rows and
    /// no columns.
    std::function<ScriptedRows(const platform::Text& statement)> answer;
    /// If set, every connect raises it.
    std::optional<platform::RuntimeError> refusal;
    /// The state of new connections.
    int state = platform::CONNECTION_OPEN;

    /// The connection strings and the statements in the order of the calls, and the connections that are
    /// still open.
    std::vector<platform::Text> connected;
    std::vector<platform::Text> statements;
    int open_connections = 0;

    std::unique_ptr<platform::CardConnection> connect(const platform::Text& connection_string) override;
};

}  // namespace tests
