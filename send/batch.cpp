#include "send/batch.h"

#include "compose/recipient_list.h"
#include "core/byte_length.h"
#include "core/phone_number.h"
#include "platform/text/number.h"
#include "send/pieces.h"

namespace send {

using platform::Text;

namespace {

/// The most bytes of cp949 in one submit's addresses.
constexpr std::size_t ADDRESS_LIMIT = 2048;

}  // namespace

std::optional<Text> address_of(const platform::ListItem& recipient) {
    const Text number = core::DIGITS_ONLY(recipient.sub_item(compose::RECIPIENT_NUMBER));
    if (platform::leading_number(number) == 0) return std::nullopt;
    Text name = platform::trim(core::without_separators(recipient.sub_item(compose::RECIPIENT_NAME)));
    if (name.empty()) name = compose::NO_NAME;
    return name + u":" + number + u";";
}

bool add_to_batch(const platform::ListView& recipients, Batch& batch, std::size_t& current, int piece) {
    const platform::ListItem& row = recipients.row(current - 1);
    if (!row.checked() || has_piece(row.sub_item(compose::RECIPIENT_PIECES), piece)) return false;
    const std::optional<Text> address = address_of(row);
    if (!address) return false;

    const std::size_t bytes = batch.bytes + core::BYTE_LEN(*address);
    if (bytes > ADDRESS_LIMIT) {
        // A recipient that is too long for any batch is left out like one without a number.
        if (batch.s_dest_addr.empty()) return false;
        --current;
        return true;
    }
    batch.s_dest_addr += *address;
    batch.bytes = bytes;
    batch.rows.push_back(current - 1);
    ++batch.count;
    // Deliberately before the first row is noted: an address that fills a batch alone also marks rows that
    // failed in the batch before. Users and support know the status column so.
    if (bytes == ADDRESS_LIMIT) return true;
    if (batch.count == 1) batch.first_row = current - 1;
    return batch.count == RECIPIENT_LIMIT || current == recipients.row_count();
}

int count_batches(const platform::ListView& recipients, int piece) {
    int batches = 0;
    Batch batch;
    for (std::size_t current = 0; current != recipients.row_count();) {
        ++current;
        const bool full = add_to_batch(recipients, batch, current, piece);
        const bool ends = current == recipients.row_count() && !batch.s_dest_addr.empty();
        if (!full && !ends) continue;
        ++batches;
        batch = {};
    }
    return batches;
}

}  // namespace send
