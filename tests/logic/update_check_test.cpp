// When an update is due, and what the check leaves behind.

#include "tests/support/updates.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace platform;
using tests::utf8;
using update::frmUpdate;

struct UpdateCheck : testing::Test, tests::Updates {};

/// A file's entry in the list of the server.
std::string entry(int number, const std::string& kind, const std::string& file, const std::string& version,
                  const std::string& marker = "") {
    return "UPDATE_FILE(" + std::to_string(number) + ")=http://server/" + file + ";" + kind + ";" + file +
           ";" + version + ";N;EXE;" + marker + "\r\n";
}

TEST(UpdateDecision, DependsOnPresenceAndOnTheVersionAsText) {
    const struct {
        const char* installed;
        const char* file;
        bool present;
        const char* version;
        bool due;
    } rows[] = {
        {"2.0.1", "a.dll", true, "2.0.1", false},
        {"2.0.1", "a.dll", true, "2.0.0", false},
        {"2.0.1", "a.dll", true, "2.0.2", true},
        {"2.0.9", "a.dll", true, "2.0.10", false},  // compared compared as texts
        {"2.0", "a.dll", true, "2.0.0", true},
        {"A", "a.dll", true, "a", true},
        {"2.0.1", "a.dll", false, "1.0", true},
        {"", "a.dll", true, "1", true},
        {"", "a.dll", true, "", false},
        {"2.0.1", "temp_update.exe", false, "2.0.1", false},
        {"2.0.1", "Temp_Update.EXE", false, "1", false},
        {"2.0.1", "temp_update.exe", false, "2.0.2", true},
    };
    for (const auto& row : rows) {
        tests::Updates updates;
        updates.install(row.installed);
        if (row.present) updates.files.files[u"z:\\app\\" + from_ascii(row.file)] = "x";
        updates.offer(entry(1, "apppath", row.file, row.version));
        updates.check();
        EXPECT_TRUE(updates.state.update.gUpdateServerReached);
        EXPECT_EQ(updates.state.update.gUpdateAvailable, row.due)
            << row.installed << " " << row.file << " " << row.present << " " << row.version;
    }
}

TEST(UpdateDecision, LooksForAFileWhereItsTypeSays) {
    const struct {
        const char* kind;
        const char* file;
        const char16_t* place;
    } rows[] = {
        {"apppath", "a.dll", u"z:\\app\\a.dll"},
        {" AppPath ", "a.dll", u"z:\\app\\a.dll"},
        {"WINDIR", "a.dll", u"z:\\windows\\a.dll"},
        {"winsysdir", "a.dll", u"z:\\windows\\system\\a.dll"},
        {"resource", "a.dll", u"z:\\app\\resource\\a.dll"},
        {" sub", "a.dll", u"z:\\app\\ sub\\a.dll"},
        {"", "a.dll", u"z:\\app\\a.dll"},
        {"data/new", "sub/a.dll", u"z:\\app\\data\\new\\sub\\a.dll"},
        {"..\\..", "etc\\passwd", u"z:\\app\\..\\..\\etc\\passwd"},
        {"apppath", "c:\\a.dll", u"z:\\app\\c:\\a.dll"},
    };
    for (const auto& row : rows) {
        tests::Updates updates;
        updates.install("1");
        updates.files.files[row.place] = "x";
        updates.offer(entry(1, row.kind, row.file, "1"));
        updates.check();
        EXPECT_FALSE(updates.state.update.gUpdateAvailable) << row.kind << " " << row.file;
        for (const Text& path : updates.files.touched)
            EXPECT_TRUE(path.ends_with(u"i_version.ini") || path.ends_with(u"update_temp\\update.ini"))
                << "only looked for, never opened: " << utf8(path);
    }
}

TEST(UpdateDecision, MarkersCountOnlyWithFilesThatAreDue) {
    const struct {
        const char* marker;
        const char* version;
        bool ums, i;
    } rows[] = {
        {"ums", "2", true, false},  {"UMS", "2", true, false}, {"I", "2", false, true},
        {"ums", "1", false, false}, {"vo", "2", false, false}, {"ii", "2", false, false},
    };
    for (const auto& row : rows) {
        tests::Updates updates;
        updates.install("1");
        updates.files.files[u"z:\\app\\a.dll"] = "x";
        updates.offer(entry(1, "apppath", "a.dll", row.version, row.marker) +
                      entry(2, "apppath", "b", "1", "x"));
        updates.check();
        EXPECT_EQ(updates.state.update.gUpdateUmsFlag, row.ums) << row.marker << row.version;
        EXPECT_EQ(updates.state.update.gUpdateIFlag, row.i) << row.marker << row.version;
    }
}

TEST_F(UpdateCheck, TheListEndsAtTheFirstGapOrAfterAHundredInAnyOrderOfKeys) {
    const auto rows = [&](const std::string& list) {
        files.files[u"z:\\app\\update_temp\\update.ini"] = "[UPDATE_FILE_LIST]\r\n" + list;
        frmUpdate form(platform, state);
        form.DOWN_UPDATE_INI_LOAD();
        return form.ListView2.row_count();
    };
    const auto numbered = [](int count) {
        std::string list;
        for (int number = count; number >= 1; --number) list += entry(number, "apppath", "a", "1");
        return list;
    };
    EXPECT_EQ(rows(""), 0u);
    EXPECT_EQ(rows(numbered(100)), 100u);
    EXPECT_EQ(rows(numbered(101)), 100u);
    EXPECT_EQ(rows(entry(4, "a", "a", "1") + "UPDATE_FILE(3)=  \r\n" + numbered(2)), 2u);
    EXPECT_EQ(rows(entry(2, "a", "a", "1")), 0u);
    EXPECT_EQ(rows("UPDATE_FILE( 1 )=a\r\nUPDATE_FILE(01)=a\r\n"), 0u);
}

TEST_F(UpdateCheck, TheFieldsOfARowStandInTheirColumns) {
    files.files[u"z:\\app\\update_temp\\update.ini"] =
        "[MESSAGEFILE]\r\nUPDATNOTEFILE=http://server/note.html\r\n[UPDATE_FILE_LIST]\r\n"
        "UPDATE_FILE(1)=a;b;c;d;e;f;g;h;i\r\nUPDATE_FILE(2)=;;only a name\r\n";
    frmUpdate form(platform, state);
    form.DOWN_UPDATE_INI_LOAD();
    std::string list;
    for (std::size_t row = 0; row < form.ListView2.row_count(); ++row) {
        for (int column = 0; column < form.ListView2.column_count(); ++column)
            list += utf8(form.ListView2.row(row).sub_item(column)) + "|";
        list += "\n";
    }
    EXPECT_EQ(list, "a|b|c|d|e|f|g||||\n||only a name||||||||\n");
    EXPECT_EQ(utf8(state.update.gUpdateNoteFile), "http://server/note.html");
    EXPECT_EQ(utf8(form.ListView2.column(9).caption), "버전확인");
}

TEST_F(UpdateCheck, WithoutAnAnswerOrLocalFactsThereIsNoUpdate) {
    const struct {
        const char* name;
        std::function<void(tests::Updates&)> arrange;
        bool reached;
    } rows[] = {
        {"nobody answers", [](auto& updates) { updates.internet.answers.clear(); }, false},
        {"an empty answer",
         [](auto& updates) { updates.internet.answers[tests::SERVER] = tests::ScriptedAnswer::ok(""); },
         false},
        {"no facts", [](auto& updates) { updates.files.files.erase(tests::VERSION_INI); }, false},
        {"no list named",
         [](auto& updates) {
             updates.files.files[tests::VERSION_INI] = "[SERVER_1]\r\nHTTPSERVER=http://server/\r\n";
         },
         true},
        {"no list there", [](auto& updates) { updates.internet.answers.erase(tests::LIST); }, true},
        {"a page in its place",
         [](auto& updates) {
             updates.internet.answers[tests::LIST] = {.header = "HTTP/1.1 404 None\r\nContent-Length: 6",
                                                      .body = "<html>"};
         },
         true},
        {"a folder that cannot be made",
         [](auto& updates) { updates.files.failure = ErrorNumber::permission_denied; }, false},
    };
    for (const auto& row : rows) {
        tests::Updates updates;
        updates.install("1");
        updates.offer(entry(1, "apppath", "missing", "1"));
        row.arrange(updates);
        updates.state.update.gUpdateServerReached = updates.state.update.gUpdateAvailable = true;
        updates.check();
        EXPECT_EQ(updates.state.update.gUpdateServerReached, row.reached) << row.name;
        EXPECT_FALSE(updates.state.update.gUpdateAvailable) << row.name;
        EXPECT_FALSE(updates.files.folders.contains(u"z:\\app\\update_temp")) << row.name;
    }
}

TEST_F(UpdateCheck, AListThatArrivesInPartIsReadAsFarAsItArrived) {
    install("1");
    const std::string list = "[UPDATE_FILE_LIST]\r\n" + entry(1, "apppath", "missing", "1");
    internet.answers[tests::LIST] = {.header = "HTTP/1.1 200 OK", .body = list};  // no length
    check();
    EXPECT_TRUE(state.update.gUpdateAvailable);
}

TEST_F(UpdateCheck, RemovesItsFileAndItsFolder) {
    install("1");
    files.folders.insert(u"z:\\app\\update_temp");
    files.files[u"z:\\app\\update_temp\\old.exe"] = "left by a check that died";
    internet.while_waiting = [&] {
        EXPECT_TRUE(state.update.gUpdateFormOpen);
        EXPECT_FALSE(files.files.contains(u"z:\\app\\update_temp\\old.exe"));
    };
    offer(entry(1, "apppath", "missing", "1"));
    const auto before = files.files;
    check();
    EXPECT_TRUE(state.update.gUpdateAvailable);
    EXPECT_FALSE(state.update.gUpdateFormOpen);
    EXPECT_TRUE(files.folders.empty());
    EXPECT_EQ(files.files.size(), before.size() - 1);
    EXPECT_EQ(internet.asked, (std::vector<Text>{tests::SERVER, tests::LIST}));
}

TEST_F(UpdateCheck, ClosingTheWindowCancelsItWhereverItWaits) {
    // The check waits for the server's bytes, lets the windows paint, waits twice for the list's header, then
    // for its bytes and for their end.
    for (int wait = 1; wait <= 6; ++wait) {
        tests::Updates updates;
        updates.install("1");
        updates.offer(entry(1, "apppath", "missing", "1"));
        frmUpdate form(updates.platform, updates.state);
        int waits = 0;
        updates.desktop.during_yield = updates.internet.while_waiting = [&] {
            if (++waits == wait) wait % 2 == 0 ? form.close_requested() : form.escape_pressed();
        };
        form.show_modal();
        EXPECT_EQ(waits, wait) << "nothing is asked for afterwards";
        const bool list_opened = std::ranges::any_of(
            updates.files.touched, [](const Text& path) { return path.ends_with(u"\\update.ini"); });
        EXPECT_EQ(list_opened, wait >= 5) << wait;
        EXPECT_TRUE(form.given_up());
        EXPECT_FALSE(updates.state.update.gUpdateServerReached);
        EXPECT_FALSE(updates.state.update.gUpdateAvailable);
        EXPECT_TRUE(updates.files.folders.empty());
    }
}

TEST_F(UpdateCheck, ClosingTheWindowBeforeItBeginsSendsNoRequest) {
    install("1");
    desktop.in_form(u"frmUpdate", [](Form& form) { form.escape_pressed(); });
    check();
    EXPECT_TRUE(internet.asked.empty());
}

TEST(DownloadFormats, SizesShowInTheirUnitByWholeRows) {
    const struct {
        double size;
        const char* text;
    } rows[] = {
        {0, "0 Byte"},     {1023, "1,023 Byte"},     {1023.5, ""},
        {1024, "1 KB"},    {1048575, "1,024 KB"},    {1048575.5, ""},
        {1048576, "1 MB"}, {1073741823, "1,024 MB"}, {1073741824, ""},
        {-1, ""},          {1536, "2 KB"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(utf8(update::Download::FormatFileSize(row.size)), row.text) << row.size;
    EXPECT_EQ(utf8(update::Download::FormatFileSize(7, u"000")), "007 Byte");
}

TEST(DownloadFormats, TimesShowByWholeRows) {
    const struct {
        float time;
        const char* text;
    } rows[] = {
        {0, "0 초"},         {58.6F, "59 초"},      {59, "59 초"},         {59.5F, "0 시 1 분"},
        {60, "1 분 0 초"},   {119.7F, "1 분 0 초"}, {3599, "59 분 59 초"}, {3599.5F, "0 시 0 분"},
        {3600, "1 시 0 분"}, {7380, "2 시 3 분"},   {-5, "0 시 0 분"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(utf8(update::Download::FormatTime(row.time)), row.text) << row.time;
}

TEST_F(UpdateCheck, TheControlReportsWhichPropertyHasChanged) {
    update::Download control(platform);
    std::string changed;
    control.PropertyChanged.connect([&](const Text& name) { changed += utf8(name) + " "; });
    EXPECT_EQ(control.chunk(), 1024);
    control.set_url(u"a");
    control.set_chunk(7);
    control.set_save_location(u"b");
    EXPECT_EQ(changed, "Url CHUNK SaveLocation ");
}

}  // namespace
