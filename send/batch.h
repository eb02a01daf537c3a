#pragma once

#include "platform/controls/list_view.h"
#include "platform/text/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace send {

/// The most recipients that the carrier takes in one submit.
inline constexpr int RECIPIENT_LIMIT = 100;

/// Recipients gathered for one submit.
struct Batch {
    platform::Text s_dest_addr;
    /// Length of the address text in cp949. Kept because measuring the whole text for each row would make a
    /// long list slow.
    std::size_t bytes = 0;
    int count = 0;
    /// The rows that are in it, counted from 0.
    std::vector<std::size_t> rows;
    /// The row at which it begins.
    std::size_t first_row = 0;
};

/// The recipient as the carrier takes it: name, ":", number, ";". Nothing for a row without a number.
std::optional<platform::Text> address_of(const platform::ListItem& recipient);

/// Adds the row to the batch when it is checked, has a number and has not got the piece yet (a text that goes
/// whole is piece 0, which nobody has got). Returns whether the batch is to be submitted now. `current` is
/// the row's number, counted from 1; a row that does not fit is not consumed (`current` is decremented) and
/// starts the next batch.
bool add_to_batch(const platform::ListView& recipients, Batch& batch, std::size_t& current, int piece);

/// How many batches the checked rows make that have not got the piece yet.
int count_batches(const platform::ListView& recipients, int piece);

}  // namespace send
