#include "platform/formats/ini_document.h"

#include "platform/text/cp949.h"
#include "tests/support/tsv.h"

#include <gtest/gtest.h>

namespace {

using platform::ini::read;
using platform::ini::write;
using tests::from_hex;

/// A field of bytes: "absent" and `""` are no bytes at all.
std::string bytes_of(const std::string& field) {
    return field == "absent" || field == "\"\"" ? std::string() : from_hex(field);
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

TEST(IniDocument, ReadsLikeTheRecordedPlatform) {
    constexpr std::size_t LONGEST_VALUE = 254;  // the most that the settings return to the program
    for (const auto& row : tests::read_tsv("ini/read.tsv")) {
        ASSERT_NE(row[3], "directory") << "a document is bytes";
        const auto value = read(bytes_of(row[3]), bytes_of(row[4]), bytes_of(row[5]));
        EXPECT_EQ(platform::cut_bytes(value.value_or(""), LONGEST_VALUE), bytes_of(row[6]))
            << row[0] << ' ' << row[1];
    }
}

TEST(IniDocument, WritesLikeTheRecordedPlatform) {
    for (const auto& row : tests::read_tsv("ini/write.tsv")) {
        std::string document = bytes_of(row[3]);
        for (const auto& one : split(row[4], ',')) {
            const auto parts = split(one, ':');
            document = write(document, from_hex(parts[0]), from_hex(parts[1]), from_hex(parts[2]));
        }
        EXPECT_EQ(document, bytes_of(row[5])) << row[0] << ' ' << row[1];
    }
}

TEST(IniDocument, AWriteChangesOneLineAndKeepsEveryOtherByte) {
    const struct {
        std::string before, after;
    } rows[] = {
        {"[S]\nk = old ; x\nz=1", "[S]\nk =v\nz=1"},
        {"[S]\r\na=1\r\n\r\n  \r\n[T]\r\n", "[S]\r\na=1\r\nk=v\r\n\r\n  \r\n[T]\r\n"},
        {"[S]\r\na=1", "[S]\r\na=1\r\nk=v\r\n"},
        {"[S]\r\ra=1\r\r", "[S]\r\ra=1\rk=v\r\n\r"},
        {"k=1", "k=1\r\n[S]\r\nk=v\r\n"},
        {"\xEF\xBB\xBF[S]\r\n", "\xEF\xBB\xBF[S]\r\n[S]\r\nk=v\r\n"},
        {std::string("\0\xFF\x1A", 3), std::string("\0\xFF\x1A", 3) + "\r\n[S]\r\nk=v\r\n"},
    };
    for (const auto& row : rows) EXPECT_EQ(write(row.before, "S", "k", "v"), row.after) << row.before;
}

TEST(IniDocument, AWrittenValueNeverBecomesALineOfItsOwn) {
    const std::string document = write("", "LOGIN", "LOGINID", "guest\r\n[SET]\r\nAUTOLOGIN=1");
    EXPECT_EQ(document, "[LOGIN]\r\nLOGINID=guest\r\n");
    EXPECT_EQ(write("", "S\r\n[T]", "k\nj", "v"), "[S]\r\nk=v\r\n");
}

TEST(IniDocument, AFileCutShortIsReadUpToTheCutAndWrittenWithoutLoss) {
    const std::string file = "; settings\r\n[SET]\r\nNick=\"\xC8\xAB\"\r\n\r\n[LOGIN]\nAUTOLOGIN = 1\n";
    for (std::size_t size = 0; size <= file.size(); ++size) {
        const std::string prefix = file.substr(0, size);
        const std::string part = read(prefix, "SET", "Nick").value_or("");
        EXPECT_TRUE(read(file, "SET", "Nick")->starts_with(part.substr(part.starts_with('"') ? 1 : 0)))
            << size;
        const std::string written = write(prefix, "LOGIN", "AUTOLOGIN", "0");
        EXPECT_EQ(read(written, "LOGIN", "AUTOLOGIN"), "0") << size;
        EXPECT_EQ(read(written, "SET", "Nick"), read(prefix, "SET", "Nick")) << size;
    }
}

TEST(IniDocument, HugeFilesAreReadInOnePass) {
    constexpr std::size_t SIZE = 1'000'000;
    for (const auto& file :
         {std::string(SIZE, '\n'), std::string(SIZE, '['), "[S]\r\nk=" + std::string(SIZE, 'x')})
        EXPECT_EQ(read(write(file, "S", "k", "v"), "S", "k"), "v");
}

}  // namespace
