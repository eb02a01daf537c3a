#include "tests/support/scripted_cards.h"

#include <algorithm>

namespace tests {

namespace {

using platform::CardField;
using platform::ErrorNumber;
using platform::RuntimeError;

class Recordset : public platform::CardRecordset {
  public:
    explicit Recordset(ScriptedRows rows) : rows_(std::move(rows)) {}

    int record_count() const override { return static_cast<int>(rows_.rows.size()); }
    bool end_of_file() const override { return current_ == rows_.rows.size(); }
    void move_next() override {
        if (end_of_file()) throw RuntimeError(ErrorNumber::no_current_record);
        ++current_;
    }
    CardField field(platform::TextView name) const override {
        const auto column = std::ranges::find_if(
            rows_.columns, [&](const auto& known) { return platform::equal_without_case(known, name); });
        if (column == rows_.columns.end()) throw RuntimeError(ErrorNumber::no_such_field);
        if (end_of_file()) throw RuntimeError(ErrorNumber::no_current_record);
        return rows_.rows[current_].at(static_cast<std::size_t>(column - rows_.columns.begin()));
    }

  private:
    ScriptedRows rows_;
    std::size_t current_ = 0;
};

class Connection : public platform::CardConnection {
  public:
    explicit Connection(ScriptedCards& cards) : cards_(cards), state_(cards.state) {
        cards_.open_connections += is_open();
    }
    ~Connection() override { close(); }

    int state() const override { return state_; }
    void close() override {
        cards_.open_connections -= is_open();
        state_ = platform::CONNECTION_CLOSED;
    }
    std::unique_ptr<platform::CardRecordset> open_recordset(const platform::Text& statement) override {
        if (!is_open()) throw RuntimeError(ErrorNumber::connection_closed);
        cards_.statements.push_back(statement);
        return std::make_unique<Recordset>(cards_.answer ? cards_.answer(statement) : ScriptedRows{});
    }

  private:
    bool is_open() const { return state_ == platform::CONNECTION_OPEN; }

    ScriptedCards& cards_;
    int state_;
};

}  // namespace

std::unique_ptr<platform::CardConnection> ScriptedCards::connect(const platform::Text& connection_string) {
    connected.push_back(connection_string);
    if (refusal) throw *refusal;
    return std::make_unique<Connection>(*this);
}

}  // namespace tests
