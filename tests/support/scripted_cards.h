#pragma once

#include "platform/error.h"
#include "platform/ports/card_source.h"

#include <functional>
#include <optional>
#include <vector>

namespace tests {

/// What a statement gives: the names of its columns and rows of as many fields.
struct ScriptedRows {
    std::vector<platform::Text> columns;
    std::vector<std::vector<platform::CardField>> rows;
};

inline platform::CardField card_number(std::int32_t value) { return {platform::FIELD_LONG, value}; }
inline platform::CardField card_text(platform::Text value) {
    return {platform::FIELD_TEXT, std::move(value)};
}
inline platform::CardField card_null(int type = platform::FIELD_TEXT) { return {type, {}}; }

/// A card database that writes down what it is asked and answers as told. It must outlive its connections.
class ScriptedCards : public platform::CardSource {
  public:
    /// What a statement gives, by its text; it may raise a RuntimeError. Until told, nothing: no row, no
    /// column.
    std::function<ScriptedRows(const platform::Text& statement)> answer;
    /// Raised by every connect as long as it stands here.
    std::optional<platform::RuntimeError> refusal;
    /// The state that new connections have.
    int state = platform::CONNECTION_OPEN;

    /// The connection strings and the statements in the order of the calls, and the connections not closed
    /// yet.
    std::vector<platform::Text> connected;
    std::vector<platform::Text> statements;
    int open_connections = 0;

    std::unique_ptr<platform::CardConnection> connect(const platform::Text& connection_string) override;
};

}  // namespace tests
