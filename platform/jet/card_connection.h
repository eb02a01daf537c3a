#pragma once

#include "platform/jet/card_database.h"
#include "platform/ports/card_source.h"

#include <memory>

namespace platform::jet {

/// A connection to what was read of the card manager's file; it keeps its contents while the file changes.
class JetCardConnection : public CardConnection {
  public:
    explicit JetCardConnection(std::shared_ptr<CardDatabase> cards) : cards_(std::move(cards)) {}

    int state() const override { return cards_ ? CONNECTION_OPEN : CONNECTION_CLOSED; }
    void close() override { cards_.reset(); }
    std::unique_ptr<CardRecordset> open_recordset(const Text& statement) override;

  private:
    std::shared_ptr<CardDatabase> cards_;
};

}  // namespace platform::jet
