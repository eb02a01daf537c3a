#include "machine/jet/card_connection.h"

#include "platform/error.h"

namespace machine::jet {

using platform::CardRecordset;
using platform::ErrorNumber;
using platform::RuntimeError;

namespace {

class Recordset : public CardRecordset {
  public:
    explicit Recordset(std::shared_ptr<const CardRows> rows) : rows_(std::move(rows)) {}

    int record_count() const override { return static_cast<int>(rows_->size()); }
    bool end_of_file() const override { return current_ == rows_->size(); }
    void move_next() override {
        if (end_of_file()) throw RuntimeError(ErrorNumber::no_current_record);
        ++current_;
    }
    platform::CardField field(platform::TextView name) const override {
        const auto column = rows_->column(name);
        if (!column) throw RuntimeError(ErrorNumber::no_such_field);
        if (end_of_file()) throw RuntimeError(ErrorNumber::no_current_record);
        return rows_->field(current_, *column);
    }

  private:
    std::shared_ptr<const CardRows> rows_;
    std::size_t current_ = 0;
};

}  // namespace

std::unique_ptr<CardRecordset> JetCardConnection::open_recordset(const platform::Text& statement) {
    if (!cards_) throw RuntimeError(ErrorNumber::connection_closed);
    return std::make_unique<Recordset>(cards_->run(statement));
}

}  // namespace machine::jet
