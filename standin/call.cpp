#include "standin/call.h"

#include <algorithm>
#include <cstring>
#include <ctime>
#include <stdexcept>

namespace standin {
namespace {

std::string local_time_now() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    tm local{};
    localtime_r(&now.tv_sec, &local);
    char seconds[32];
    const std::size_t length = std::strftime(seconds, sizeof seconds, "%Y-%m-%d %H:%M:%S", &local);
    const std::string milliseconds = std::to_string(1000 + now.tv_nsec / 1'000'000).substr(1);
    return std::string(seconds, length) + "." + milliseconds;
}

}  // namespace

Call::Call(std::string operation) : operation_(std::move(operation)), time_(local_time_now()) {}

Argument& Call::add(std::string name, const char* kind) {
    Argument& added = arguments_.emplace_back();
    added.name = std::move(name);
    added.kind = kind;
    return added;
}

Call& Call::number(std::string name, std::int32_t value) {
    add(std::move(name), "number").number = value;
    return *this;
}

Call& Call::text(std::string name, const char* value) {
    Argument& added = add(std::move(name), "text");
    if (value != nullptr) {
        added.bytes = value;
    }
    return *this;
}

Call& Call::buffer(std::string name, const char* value, std::size_t size) {
    Argument& added = add(std::move(name), "text");
    if (value != nullptr) {
        added.bytes = std::string(value, strnlen(value, size));
    }
    return *this;
}

Call& Call::password(std::string name, const char* value) {
    add(std::move(name), "password").shown = value == nullptr ? "NULL" : std::string(std::strlen(value), '*');
    return *this;
}

Call& Call::pointer(std::string name, const void* value) {
    add(std::move(name), "pointer").shown = value == nullptr ? "NULL" : "given";
    return *this;
}

Call& Call::callback(std::string name, bool given) {
    add(std::move(name), "callback").shown = given ? "given" : "NULL";
    return *this;
}

const Argument& Call::argument(std::string_view name) const {
    const auto found = std::find_if(arguments_.begin(), arguments_.end(),
                                    [&](const Argument& each) { return each.name == name; });
    if (found == arguments_.end()) {
        throw std::out_of_range(operation_ + " has no argument " + std::string(name));
    }
    return *found;
}

Argument& Call::argument(std::string_view name) {
    return const_cast<Argument&>(static_cast<const Call&>(*this).argument(name));
}

}  // namespace standin
