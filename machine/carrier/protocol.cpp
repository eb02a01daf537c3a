#include "machine/carrier/protocol.h"

#include <algorithm>
#include <array>

namespace machine::carrier {

namespace {

constexpr std::array<Shape, 6> SHAPES{{{"fn_x_bind", 4, 3, true},
                                       {"fn_x_unbind", 0, 2, true},
                                       {"fn_x_money_status", 5, 4, true},
                                       {"fn_x_user_info", 0, 8, true},
                                       {"fn_x_submit", 4, 10, false},
                                       {"fn_x_submit_2", 6, 11, false}}};

std::array<char, 4> bytes_of(std::uint32_t number) {
    return {static_cast<char>(number), static_cast<char>(number >> 8), static_cast<char>(number >> 16),
            static_cast<char>(number >> 24)};
}

void append(WipedBytes& out, std::uint32_t number) {
    const std::array<char, 4> bytes = bytes_of(number);
    out.append({bytes.data(), bytes.size()});
}

void append(WipedBytes& out, const std::vector<std::int32_t>& numbers,
            const std::vector<std::string_view>& texts) {
    for (const std::int32_t number : numbers) append(out, static_cast<std::uint32_t>(number));
    for (const std::string_view text : texts) {
        append(out, static_cast<std::uint32_t>(text.size()));
        out.append(text);
    }
}

/// Starts a frame whose head is written by end_frame().
void begin_frame(WipedBytes& frame, std::uint8_t first) {
    frame.wipe();
    frame.resize(FRAME_HEAD + 1);
    frame.data()[FRAME_HEAD] = static_cast<char>(first);
}

void end_frame(WipedBytes& frame) {
    std::ranges::copy(bytes_of(static_cast<std::uint32_t>(frame.size() - FRAME_HEAD)), frame.data());
}

/// Takes values from the front of foreign bytes. Beyond their end values are 0 and empty, and the whole is
/// broken.
class Reader {
  public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    std::uint8_t byte() {
        const std::string_view taken = take(1);
        return taken.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(taken.front());
    }
    std::uint32_t number() {
        std::uint32_t number = 0;
        int bit = 0;
        for (const char byte : take(4)) {
            number |= std::uint32_t{static_cast<std::uint8_t>(byte)} << bit;
            bit += 8;
        }
        return number;
    }
    std::string_view text() { return take(number()); }

    std::vector<std::int32_t> numbers(std::size_t count) {
        std::vector<std::int32_t> all(count);
        for (std::int32_t& each : all) each = static_cast<std::int32_t>(number());
        return all;
    }
    std::vector<std::string_view> texts(std::size_t count) {
        std::vector<std::string_view> all(count);
        for (std::string_view& each : all) each = text();
        return all;
    }

    /// Whether everything was there, and nothing else.
    bool ends_well() const { return !broken_ && rest_.empty(); }

  private:
    std::string_view take(std::size_t length) {
        if (length > rest_.size()) {
            broken_ = true;
            return {};
        }
        const std::string_view taken = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return taken;
    }

    std::string_view rest_;
    bool broken_ = false;
};

}  // namespace

const Shape& shape_of(Export which) { return SHAPES[static_cast<std::size_t>(which)]; }

std::optional<std::size_t> payload_length(std::string_view head) {
    const std::size_t length = Reader(head).number();
    if (length > LONGEST_PAYLOAD) return std::nullopt;
    return length;
}

bool write_call(const Call& call, WipedBytes& frame) {
    begin_frame(frame, static_cast<std::uint8_t>(call.which));
    append(frame, call.numbers, call.texts);
    end_frame(frame);
    return frame.size() - FRAME_HEAD <= LONGEST_PAYLOAD;
}

void write_answer(const Answer& answer, WipedBytes& frame) {
    begin_frame(frame, static_cast<std::uint8_t>(answer.outcome));
    append(frame, static_cast<std::uint32_t>(answer.result));
    append(frame, answer.numbers, answer.texts);
    end_frame(frame);
}

std::optional<Call> parse_call(std::string_view payload) {
    Reader reader(payload);
    const std::size_t which = reader.byte();
    if (which >= SHAPES.size()) return std::nullopt;
    Call call{.which = static_cast<Export>(which),
              .numbers = reader.numbers(SHAPES[which].numbers),
              .texts = reader.texts(SHAPES[which].texts)};
    if (!reader.ends_well()) return std::nullopt;
    return call;
}

std::optional<Answer> parse_answer(std::string_view payload, const Call& call) {
    Reader reader(payload);
    const std::uint8_t outcome = reader.byte();
    if (outcome > static_cast<std::uint8_t>(Outcome::no_export)) return std::nullopt;
    Answer answer{.outcome = static_cast<Outcome>(outcome),
                  .result = static_cast<std::int32_t>(reader.number())};
    if (answer.outcome == Outcome::returned && shape_of(call.which).gives_back) {
        answer.numbers = reader.numbers(call.numbers.size());
        answer.texts = reader.texts(call.texts.size());
        for (std::size_t i = 0; i < call.texts.size(); ++i) {
            if (answer.texts[i].size() != call.texts[i].size()) return std::nullopt;
        }
    }
    if (!reader.ends_well()) return std::nullopt;
    return answer;
}

}  // namespace machine::carrier
