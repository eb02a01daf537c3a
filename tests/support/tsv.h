#pragma once

#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tests {

using TsvRow = std::vector<std::string>;

/// The rows of a fixture below tests/fixtures, without its heading; fields unchanged. Throws when the fixture
/// is missing or empty, so that no test passes for lack of rows.
inline std::vector<TsvRow> read_tsv(const std::string& name) {
    std::ifstream in(std::string(ZENT_FIXTURES) + "/" + name, std::ios::binary);
    std::vector<TsvRow> rows;
    std::string line;
    std::getline(in, line);
    while (std::getline(in, line)) {
        TsvRow row;
        std::size_t begin = 0;
        for (auto tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t', begin)) {
            row.push_back(line.substr(begin, tab - begin));
            begin = tab + 1;
        }
        row.push_back(line.substr(begin));
        rows.push_back(row);
    }
    if (rows.empty()) throw std::runtime_error("no rows in the fixture " + name);
    return rows;
}

/// The bytes that the hexadecimal digits stand for.
inline std::string from_hex(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16));
    }
    return bytes;
}

}  // namespace tests
