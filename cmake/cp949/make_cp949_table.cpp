// Turns cp949.txt into the C++ source of the tables that platform/text/cp949_table.h declares:
//   make_cp949_table cp949.txt cp949_table.cpp
// It runs at build time, so that the program need not build the tables when it starts.

#include "platform/text/cp949_table.h"

#include <cstdint>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace table = platform::cp949_table;

struct Tables {
    std::vector<std::uint16_t> encode = std::vector<std::uint16_t>(0x10000, '?');
    std::vector<std::uint16_t> decode_single = std::vector<std::uint16_t>(0x100, '?');
    std::vector<std::uint16_t> decode_double = std::vector<std::uint16_t>(table::PAIRS, '?');

    void add(unsigned bytes, std::uint16_t unit) {
        encode.at(unit) = static_cast<std::uint16_t>(bytes);
        if (bytes < 0x100) {
            decode_single.at(bytes) = unit;
        } else {
            const unsigned lead = bytes >> 8, trail = bytes & 0xFF;
            decode_double.at((lead - table::FIRST_LEAD) * table::TRAILS + trail - table::FIRST_TRAIL) = unit;
        }
    }

    std::vector<std::uint16_t> bytes() const {
        std::vector<std::uint16_t> counts;
        for (const std::uint16_t code : encode) counts.push_back(code > 0xFF ? 2 : 1);
        return counts;
    }
};

unsigned hex(const std::string& digits) { return static_cast<unsigned>(std::stoul(digits, nullptr, 16)); }

Tables read(std::istream& in) {
    Tables tables;
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        std::string first, word;
        words >> first;
        if (first == "#" || first.empty()) continue;
        if (first == "=") {
            std::string bytes;
            words >> word >> bytes;
            tables.encode.at(hex(word)) = static_cast<std::uint16_t>(hex(bytes));
        } else {
            for (unsigned bytes = hex(first); words >> word; ++bytes) {
                tables.add(bytes, static_cast<std::uint16_t>(hex(word)));
            }
        }
    }
    return tables;
}

void write(std::ostream& out, const char* name, const std::vector<std::uint16_t>& numbers) {
    out << "\nconst decltype(" << name << ") " << name << " = {{" << std::hex;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        out << (i % 16 ? " " : "\n    ") << "0x" << numbers[i] << ",";
    out << "\n}};\n";
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: make_cp949_table cp949.txt cp949_table.cpp\n";
        return 2;
    }
    std::ifstream in(argv[1]);
    std::ofstream out(argv[2]);
    const Tables tables = read(in);
    out << "// Made by make_cp949_table.\n#include \"platform/text/cp949_table.h\"\n\n"
        << "namespace platform::cp949_table {\n";
    write(out, "ENCODE", tables.encode);
    write(out, "BYTES", tables.bytes());
    write(out, "DECODE_SINGLE", tables.decode_single);
    write(out, "DECODE_DOUBLE", tables.decode_double);
    out << "\n}  // namespace platform::cp949_table\n";
    return in.eof() && out.flush() ? 0 : 1;
}
