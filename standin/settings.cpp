#include "standin/settings.h"

#include "standin/cp949.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <limits>
#include <stdexcept>

namespace standin {
namespace {

constexpr std::array<std::string_view, 6> operations = {
    "fn_x_bind", "fn_x_unbind", "fn_x_submit", "fn_x_submit_2", "fn_x_user_info", "fn_x_money_status"};
constexpr std::string_view account_section = "account ";
constexpr std::string_view inbox_section = "inbox ";
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::int32_t number(std::string_view text) {
    std::int32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw std::runtime_error("\"" + std::string(text) + "\" is not a number");
    }
    return value;
}

std::string operation(std::string_view name) {
    if (std::find(operations.begin(), operations.end(), name) == operations.end()) {
        throw std::runtime_error("there is no operation \"" + std::string(name) + "\"");
    }
    return std::string(name);
}

/// An order's key: operation, "@", and the calls as "2", "2-5" or "*".
Order order(std::string_view key, std::string_view result) {
    const std::size_t at = key.find('@');
    if (at == std::string_view::npos) {
        throw std::runtime_error("an order reads operation@call=result");
    }
    Order order;
    order.operation = operation(key.substr(0, at));
    order.result = number(result);
    const std::string_view calls = key.substr(at + 1);
    const std::size_t dash = calls.find('-');
    if (calls == "*") {
        order.last = std::numeric_limits<std::int32_t>::max();
    } else {
        order.first = number(calls.substr(0, dash));
        order.last = dash == std::string_view::npos ? order.first : number(calls.substr(dash + 1));
    }
    return order;
}

[[noreturn]] void unknown_key(std::string_view section) {
    throw std::runtime_error("the section [" + std::string(section) + "] has no such key");
}

void set_account(Account& account, std::string_view section, std::string_view key, std::string_view value) {
    if (key == "password") {
        account.password = cp949_from_utf8(value);
    } else if (key == "type") {
        account.type = number(value);
    } else if (key == "state") {
        account.state = number(value);
    } else if (key == "service_number") {
        account.service_number = cp949_from_utf8(value);
    } else if (key == "user_name") {
        account.user_name = cp949_from_utf8(value);
    } else if (key == "sender_name") {
        account.sender_name = cp949_from_utf8(value);
    } else if (key == "callback") {
        account.callback = cp949_from_utf8(value);
    } else {
        unknown_key(section);
    }
}

/// The pieces of a value that "|" separates.
std::vector<std::string> pieces(std::string_view value) {
    std::vector<std::string> found;
    std::size_t bar = 0;
    for (std::size_t start = 0; bar != std::string_view::npos; start = bar + 1) {
        bar = value.find('|', start);
        found.emplace_back(trimmed(value.substr(start, bar - start)));
    }
    return found;
}

Received received(std::string_view time, std::string_view value) {
    const std::vector<std::string> texts = pieces(value);
    if (texts.size() != 4) {
        throw std::runtime_error("a line of an inbox reads time=kind|sender|size|title");
    }
    return {std::string(time), texts[0], texts[1], texts[2], texts[3]};
}

void set_price(Prices& prices, std::string_view section, std::string_view key, std::string_view value) {
    if (key == "monthly") {
        prices.monthly = number(value);
    } else if (key == "text") {
        prices.text = number(value);
    } else if (key == "text_plus") {
        prices.text_plus = number(value);
    } else if (key == "voice") {
        prices.voice = number(value);
    } else if (key == "fax") {
        prices.fax = number(value);
    } else {
        unknown_key(section);
    }
}

void set(Settings& settings, std::string_view section, std::string_view key, std::string_view value) {
    if (section.starts_with(account_section)) {
        const std::string_view id = trimmed(section.substr(account_section.size()));
        set_account(settings.accounts[cp949_from_utf8(id)], section, key, value);
    } else if (section.starts_with(inbox_section)) {
        const std::string_view id = trimmed(section.substr(inbox_section.size()));
        settings.inboxes[std::string(id)].push_back(received(key, value));
    } else if (section == "prices") {
        set_price(settings.prices, section, key, value);
    } else if (section == "carrier" && key == "ledger") {
        settings.ledger = value;
    } else if (section == "limits" && key == "recipients") {
        settings.recipient_limit = number(value);
    } else if (section == "limits" && key == "attachments") {
        settings.attachment_limit = number(value);
    } else if (section == "failures" && key == "no_nul") {
        settings.buffer_faults.no_nul = number(value) != 0;
    } else if (section == "failures" && key == "overrun") {
        settings.buffer_faults.overrun = std::max(0, number(value));
    } else if (section == "failures") {
        settings.orders.push_back(order(key, value));
    } else if (section == "delays") {
        settings.delays[operation(key)] = number(value);
    } else {
        unknown_key(section);
    }
}

}  // namespace

const Account* Settings::account(std::string_view user_id) const {
    const auto found = accounts.find(user_id);
    return found == accounts.end() ? nullptr : &found->second;
}

std::optional<std::int32_t> Settings::ordered_result(std::string_view operation, std::int32_t nth) const {
    for (const Order& order : orders) {
        if (order.operation == operation && order.first <= nth && nth <= order.last) {
            return order.result;
        }
    }
    return std::nullopt;
}

std::int32_t Settings::delay(std::string_view operation) const {
    const auto found = delays.find(operation);
    return found == delays.end() ? 0 : found->second;
}

Settings read_settings(const std::string& path) {
    Settings settings;
    std::ifstream file(path, std::ios::binary);
    std::string section;
    std::string line;
    for (int line_number = 1; std::getline(file, line); ++line_number) {
        std::string_view text = line;
        if (line_number == 1 && text.starts_with(byte_order_mark)) {
            text.remove_prefix(byte_order_mark.size());
        }
        text = trimmed(text);
        if (text.empty() || text.front() == ';' || text.front() == '#') {
            continue;
        }
        if (text.front() == '[' && text.back() == ']') {
            section = trimmed(text.substr(1, text.size() - 2));
            continue;
        }
        try {
            const std::size_t equals = text.find('=');
            if (equals == std::string_view::npos) {
                throw std::runtime_error("a line reads key=value");
            }
            set(settings, section, trimmed(text.substr(0, equals)), trimmed(text.substr(equals + 1)));
        } catch (const std::runtime_error& error) {
            throw std::runtime_error(path + ":" + std::to_string(line_number) + ": " + error.what());
        }
    }
    return settings;
}

}  // namespace standin
