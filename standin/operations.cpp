#include "standin/operations.h"

#include "standin/attachments.h"
#include "standin/cp949.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <string_view>
#include <thread>

namespace standin {
namespace {

constexpr const char* settings_file = "carrier.ini";
constexpr char overrun_byte = '#';

std::string_view view(const char* text) { return text == nullptr ? std::string_view() : text; }

void fill(Call& call, const OutNumber& number, std::int32_t value) {
    if (number.value != nullptr) {
        *number.value = value;
        call.argument(number.argument).answer = std::to_string(value);
    }
}

/// What goes into a buffer of `size` bytes: the text, cut to fit with its NUL, or spoilt by the faults.
std::string buffer_contents(std::string_view text, std::size_t size, const BufferFaults& faults) {
    if (!faults.no_nul && faults.overrun == 0) {
        return std::string(whole_characters(text, size - 1)) + '\0';
    }
    std::string contents(whole_characters(text, size));
    contents.resize(size, ' ');
    contents.append(static_cast<std::size_t>(faults.overrun), overrun_byte);
    if (!faults.no_nul) {
        contents.back() = '\0';
    }
    return contents;
}

void fill(Call& call, const OutBuffer& buffer, std::string_view text, const BufferFaults& faults) {
    if (buffer.bytes != nullptr) {
        const std::string contents = buffer_contents(text, buffer.size, faults);
        std::memcpy(buffer.bytes, contents.data(), contents.size());
        call.argument(buffer.argument).answer_bytes = contents;
    }
}

}  // namespace

Carrier::Carrier() : settings_(read_settings(settings_file)), ledger_(settings_.ledger) {}

/// Counts the call, waits for its delay, and returns the result code ordered for it.
std::optional<std::int32_t> Carrier::begin(Call& call) {
    call.nth = ++calls_[call.operation()];
    std::this_thread::sleep_for(std::chrono::milliseconds(settings_.delay(call.operation())));
    return settings_.ordered_result(call.operation(), call.nth);
}

bool Carrier::password_matches(Call& call, const char* user_id, const char* password) const {
    const Account* account = settings_.account(view(user_id));
    const bool matches = account != nullptr && account->password == view(password);
    call.argument("password").note = account == nullptr ? "unknown user"
                                     : matches          ? "matches"
                                                        : "does not match";
    return matches;
}

const Account* Carrier::bound_account(const char* user_id) const {
    return bound_.contains(view(user_id)) ? settings_.account(view(user_id)) : nullptr;
}

std::int32_t Carrier::bind(Call& call, const char* user_id, const char* password, Notify11 notify,
                           OutNumber answer) {
    settings_ = read_settings(settings_file);
    const std::optional<std::int32_t> ordered = begin(call);
    if (notify != nullptr) {
        call.argument("notify_11").answer = std::to_string(notify(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
    }
    const bool matches = password_matches(call, user_id, password);
    const std::int32_t result = ordered.value_or(matches ? registered : not_authenticated);
    if (result == registered) {
        bound_.emplace(view(user_id));
    }
    fill(call, answer, 0);
    ledger_.enter(call, result, nullptr);
    return result;
}

std::int32_t Carrier::unbind(Call& call, const char* user_id, const char* password) {
    const std::optional<std::int32_t> ordered = begin(call);
    const bool matches = password_matches(call, user_id, password);
    const bool was_bound = bound_account(user_id) != nullptr;
    const std::int32_t result = ordered.value_or(matches && was_bound ? registered : not_authenticated);
    if (result == registered) {
        bound_.erase(std::string(view(user_id)));
    }
    ledger_.enter(call, result, nullptr);
    return result;
}

std::int32_t Carrier::money_status(Call& call, const char* user_id, OutNumber type, OutNumber state,
                                   const std::array<OutNumber, 10>& others) {
    const std::optional<std::int32_t> ordered = begin(call);
    const Account* account = bound_account(user_id);
    const std::int32_t result = ordered.value_or(account != nullptr ? registered : not_authenticated);
    if (result == registered && account != nullptr) {
        fill(call, type, account->type);
        fill(call, state, account->state);
        for (const OutNumber& other : others) {
            fill(call, other, 0);
        }
    }
    ledger_.enter(call, result, nullptr);
    return result;
}

std::int32_t Carrier::user_info(Call& call, const char* user_id, const std::array<OutBuffer, 4>& buffers,
                                OutNumber answer) {
    const std::optional<std::int32_t> ordered = begin(call);
    const Account* account = bound_account(user_id);
    const std::int32_t result = ordered.value_or(account != nullptr ? registered : not_authenticated);
    if (result == registered && account != nullptr) {
        const BufferFaults& faults = settings_.buffer_faults;
        fill(call, buffers[0], account->service_number, faults);
        fill(call, buffers[1], account->user_name, faults);
        fill(call, buffers[2], account->sender_name, faults);
        fill(call, buffers[3], account->callback, faults);
        fill(call, answer, 0);
    }
    ledger_.enter(call, result, nullptr);
    return result;
}

std::int32_t Carrier::submit(Call& call) {
    const Submission submission = submission_of(call);
    const std::optional<std::int32_t> ordered = begin(call);
    const std::int32_t result = ordered ? *ordered : verdict(submission);
    ledger_.enter(call, result, &submission);
    return result;
}

std::int32_t Carrier::verdict(const Submission& submission) const {
    if (bound_account(submission.user_id.c_str()) == nullptr) {
        return not_authenticated;
    }
    const auto recipients = static_cast<std::int64_t>(list_entries(submission.dest_addr).size());
    if (std::max<std::int64_t>(recipients, submission.dest_addr_count) > settings_.recipient_limit) {
        return too_many_recipients;
    }
    const std::vector<std::string> attachments = list_entries(submission.attach_file);
    const auto listed = static_cast<std::int64_t>(attachments.size());
    if (std::max<std::int64_t>(listed, submission.attach_file_count) > settings_.attachment_limit) {
        return too_many_attachments;
    }
    const bool all_there = std::all_of(attachments.begin(), attachments.end(), attachment_exists);
    return all_there && submission.attach_file_count <= listed ? registered : attachment_missing;
}

}  // namespace standin
