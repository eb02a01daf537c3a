#pragma once

#include "machine/jet/jet_card_source.h"
#include "tests/support/files_on_disk.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tests {

/// A table of a card database as an independent reader recorded it; nothing stands for NULL.
class CardTable {
  public:
    using Row = std::vector<std::optional<platform::Text>>;

    explicit CardTable(const std::string& name) {
        std::ifstream in(std::string(ZENT_FIXTURES) + "/cards/" + name + ".tsv", std::ios::binary);
        std::string line;
        if (!std::getline(in, line)) throw std::runtime_error("no fixture " + name);
        for (const auto& column : fields_of(line)) columns_.push_back(column.value());
        while (std::getline(in, line)) rows.push_back(fields_of(line));
    }

    const std::optional<platform::Text>& at(const Row& row, platform::TextView column) const {
        const auto found = std::find(columns_.begin(), columns_.end(), column);
        if (found == columns_.end()) throw std::runtime_error("no such column");
        return row.at(static_cast<std::size_t>(found - columns_.begin()));
    }
    int number(const Row& row, platform::TextView column) const {
        return std::stoi(platform::to_utf8(at(row, column).value()));
    }

    std::vector<Row> rows;

  private:
    static Row fields_of(const std::string& line) {
        Row row;
        std::string field;
        for (std::size_t i = 0; i <= line.size(); ++i) {
            if (i == line.size() || line[i] == '\t') {
                row.push_back(field == "\\N" ? std::nullopt
                                             : std::optional(platform::from_utf8(unescaped(field))));
                field.clear();
            } else {
                field += line[i];
            }
        }
        return row;
    }
    static std::string unescaped(const std::string& field) {
        std::string out;
        for (std::size_t i = 0; i < field.size(); ++i) {
            if (field[i] != '\\') {
                out += field[i];
                continue;
            }
            const char mark = field.at(++i);
            out += mark == 't' ? '\t' : mark == 'n' ? '\n' : mark == 'r' ? '\r' : mark;
        }
        return out;
    }

    std::vector<platform::Text> columns_;
};

/// An application directory with the program that reads card databases, and a card source for it.
class CardsOnDisk {
  public:
    explicit CardsOnDisk(std::chrono::milliseconds longest_reading = std::chrono::seconds(30))
        : source(machine::posix::Paths(folder.path().string()), {}, longest_reading) {
        std::filesystem::create_symlink(CARD_READER, reader);
    }

    static std::filesystem::path fixture(const std::string& name) {
        return std::string(ZENT_FIXTURES) + "/cards/" + name + ".vdb";
    }

    /// Puts the fixture in place of the card manager's file, with an old date.
    void put(const std::string& name) { put_bytes(bytes_of(fixture(name))); }
    void put_bytes(const std::string& bytes) {
        tests::put(database, bytes);
        std::filesystem::last_write_time(
            database, std::filesystem::file_time_type::clock::now() - std::chrono::hours(++puts_));
    }
    /// Puts a script in place of the reader.
    void put_reader(const std::string& script) {
        std::filesystem::remove(reader);
        tests::put(reader, "#!/bin/sh\n" + script + "\n");
        std::filesystem::permissions(reader, std::filesystem::perms::owner_all);
    }

    std::unique_ptr<platform::CardConnection> connect(const platform::Text& password = u"cardvale070915") {
        return source.connect(u"provider=Microsoft.Jet.OLEDB.4.0;Data Source=" +
                              machine::posix::Paths::from_posix(database.string()) +
                              u";Jet OLEDB:Database Password=" + password +
                              u";Persist Security Info=True;User ID=admin");
    }
    int error(const platform::Text& password = u"cardvale070915") {
        return error_number([&] { connect(password); });
    }

    TemporaryFolder folder;
    std::filesystem::path database = folder.path() / "CardvaleDB.vdb";
    std::filesystem::path reader = folder.path() / "card-reader";
    machine::jet::JetCardSource source;

  private:
    int puts_ = 0;
};

}  // namespace tests
