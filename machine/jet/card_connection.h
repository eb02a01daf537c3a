#pragma once

#include "machine/jet/sql/card_database.h"
#include "platform/ports/card_source.h"

#include <memory>

namespace machine::jet {

/// A connection to the cards as they were read; later changes of the card manager's file do not affect it.
class JetCardConnection : public platform::CardConnection {
  public:
    explicit JetCardConnection(std::shared_ptr<CardDatabase> cards) : cards_(std::move(cards)) {}

    int state() const override { return cards_ ? platform::CONNECTION_OPEN : platform::CONNECTION_CLOSED; }
    void close() override { cards_.reset(); }
    std::unique_ptr<platform::CardRecordset> open_recordset(const platform::Text& statement) override;

  private:
    std::shared_ptr<CardDatabase> cards_;
};

}  // namespace machine::jet
