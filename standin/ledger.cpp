#include "standin/ledger.h"

#include "standin/attachments.h"
#include "standin/cp949.h"

#include <optional>
#include <unistd.h>

namespace standin {
namespace {

constexpr const char* schema = R"sql(
CREATE TABLE IF NOT EXISTS call (
    id        INTEGER PRIMARY KEY AUTOINCREMENT,
    time      TEXT    NOT NULL,  -- local, yyyy-MM-dd HH:mm:ss.mmm
    process   INTEGER NOT NULL,
    operation TEXT    NOT NULL,
    nth       INTEGER NOT NULL,  -- of this operation in this process
    result    INTEGER NOT NULL
);
CREATE INDEX IF NOT EXISTS call_by_time ON call (time);
CREATE TABLE IF NOT EXISTS argument (
    call         INTEGER NOT NULL REFERENCES call (id),
    position     INTEGER NOT NULL,  -- from 1
    name         TEXT    NOT NULL,
    kind         TEXT    NOT NULL,  -- number, text, password, pointer, callback
    number       INTEGER,
    text         TEXT,              -- UTF-8, NULL for a NULL text; stars for a password
    bytes        BLOB,              -- cp949, as it came
    answer       TEXT,              -- what the call left here, UTF-8
    answer_bytes BLOB,              -- every byte written here, NUL included
    note         TEXT    NOT NULL,
    PRIMARY KEY (call, position)
) WITHOUT ROWID;
CREATE TABLE IF NOT EXISTS registration (
    id                INTEGER PRIMARY KEY AUTOINCREMENT,
    call              INTEGER NOT NULL UNIQUE REFERENCES call (id),
    time              TEXT    NOT NULL,
    operation         TEXT    NOT NULL,
    result            INTEGER NOT NULL,  -- 1 registered, any other refused
    user_id           TEXT    NOT NULL,
    data_type         INTEGER NOT NULL,
    data_sub_type     INTEGER,
    submit_sequence   INTEGER NOT NULL,
    subject           TEXT    NOT NULL,
    schedule_time     TEXT    NOT NULL,  -- yyyyMMddHHmm00
    callback          TEXT    NOT NULL,
    reply_flag        INTEGER,
    dest_addr_count   INTEGER NOT NULL,  -- as the client counted
    recipient_count   INTEGER NOT NULL,  -- as dest_addr has them
    dest_addr         TEXT    NOT NULL,
    sms_content       TEXT    NOT NULL,
    tts_content       TEXT,
    attach_file_count INTEGER NOT NULL,
    attach_file       TEXT    NOT NULL
);
CREATE INDEX IF NOT EXISTS registration_by_time   ON registration (time);
CREATE INDEX IF NOT EXISTS registration_by_result ON registration (result, time);
CREATE INDEX IF NOT EXISTS registration_by_user   ON registration (user_id, time);
-- What the service's pages ask: a user's registered or refused ones, and what a month of them costs.
CREATE INDEX IF NOT EXISTS registration_by_state  ON registration (user_id, result = 1, time);
CREATE INDEX IF NOT EXISTS registration_charged
    ON registration (user_id, result, data_type, time, recipient_count);
)sql";

/// Opens the file so that others can read while this process writes, and a killed process loses nothing that
/// was committed.
Database open_ledger(const std::string& path) {
    Database database(path, Database::Access::write);
    database.execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;");
    Transaction transaction(database);
    database.execute(schema);
    transaction.commit();
    return database;
}

std::optional<std::string> readable(const std::optional<std::string>& bytes) {
    return bytes ? std::optional(utf8_from_cp949(*bytes)) : std::nullopt;
}

/// The text that a reader of the buffer would find.
std::optional<std::string> readable_answer(const Argument& argument) {
    return argument.answer_bytes
               ? readable(argument.answer_bytes->substr(0, argument.answer_bytes->find('\0')))
               : argument.answer;
}

}  // namespace

Ledger::Ledger(const std::string& path)
    : database_(open_ledger(path)),
      insert_call_(database_.prepare(
          "INSERT INTO call (time, process, operation, nth, result) VALUES (?, ?, ?, ?, ?)")),
      insert_argument_(database_.prepare(
          "INSERT INTO argument (call, position, name, kind, number, text, bytes, answer, answer_bytes, note)"
          " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")),
      insert_registration_(database_.prepare(
          "INSERT INTO registration (call, time, operation, result, user_id, data_type, data_sub_type,"
          " submit_sequence, subject, schedule_time, callback, reply_flag, dest_addr_count, recipient_count,"
          " dest_addr, sms_content, tts_content, attach_file_count, attach_file)"
          " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")) {}

void Ledger::enter(const Call& call, std::int32_t result, const Submission* submission) {
    Transaction transaction(database_);
    insert_call_.bind_text(1, call.time());
    insert_call_.bind(2, getpid());
    insert_call_.bind_text(3, call.operation());
    insert_call_.bind(4, call.nth);
    insert_call_.bind(5, result);
    insert_call_.step();
    const std::int64_t row = database_.last_row();
    std::int64_t position = 0;
    for (const Argument& argument : call.arguments()) {
        enter_argument(row, ++position, argument);
    }
    if (submission != nullptr) {
        enter_registration(row, call, result, *submission);
    }
    transaction.commit();
}

void Ledger::enter_argument(std::int64_t call, std::int64_t position, const Argument& argument) {
    const bool is_text = argument.kind == "text";
    const bool is_number = argument.kind == "number";
    Statement& insert = insert_argument_;
    insert.bind(1, call);
    insert.bind(2, position);
    insert.bind_text(3, argument.name);
    insert.bind_text(4, argument.kind);
    insert.bind(5, argument.number);
    insert.bind_text(6, is_text     ? readable(argument.bytes)
                        : is_number ? std::nullopt
                                    : std::optional(argument.shown));
    insert.bind_bytes(7, argument.bytes);
    insert.bind_text(8, readable_answer(argument));
    insert.bind_bytes(9, argument.answer_bytes);
    insert.bind_text(10, argument.note);
    insert.step();
}

void Ledger::enter_registration(std::int64_t row, const Call& call, std::int32_t result,
                                const Submission& submission) {
    Statement& insert = insert_registration_;
    insert.bind(1, row);
    insert.bind_text(2, call.time());
    insert.bind_text(3, call.operation());
    insert.bind(4, result);
    insert.bind_text(5, readable(submission.user_id));
    insert.bind(6, submission.data_type);
    insert.bind(7, submission.data_sub_type);
    insert.bind(8, submission.submit_sequence);
    insert.bind_text(9, readable(submission.subject));
    insert.bind_text(10, readable(submission.schedule_time));
    insert.bind_text(11, readable(submission.callback));
    insert.bind(12, submission.reply_flag);
    insert.bind(13, submission.dest_addr_count);
    insert.bind(14, static_cast<std::int64_t>(list_entries(submission.dest_addr).size()));
    insert.bind_text(15, readable(submission.dest_addr));
    insert.bind_text(16, readable(submission.sms_content));
    insert.bind_text(17, readable(submission.tts_content));
    insert.bind(18, submission.attach_file_count);
    insert.bind_text(19, readable(submission.attach_file));
    insert.step();
}

}  // namespace standin
