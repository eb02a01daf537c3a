#pragma once

#include "machine/drafts/statement.h"
#include "platform/ports/draft_store.h"

#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <string>

namespace machine::drafts {

/// The drafts in an SQLite database, which survives a kill and a power cut. Only its user can read the file.
/// It is opened at the first use.
class SqliteDraftStore : public platform::DraftStore {
  public:
    /// The file lies in the folder; its name is another for each application directory.
    SqliteDraftStore(std::string folder, const std::string& application_directory);
    ~SqliteDraftStore() override;

    std::optional<platform::KeptDraft> next() override;
    void read_recipients(const std::function<void(platform::KeptRecipient)>& read) override;
    void take_up() override;
    void decline() override;
    void put_field(platform::TextView name, const platform::Text& value) override;
    void put_recipient(std::size_t row, const platform::KeptRecipient& recipient) override;
    void remove_recipients_from(std::size_t row) override;
    void commit(platform::LocalTime now, bool at_rest) override;
    platform::Text set_aside() override;

  private:
    struct Close {
        void operator()(sqlite3* database) const;
    };
    struct Finish {
        void operator()(sqlite3_stmt* statement) const;
    };

    void open();
    void make_tables();
    void run(const char* sql);
    Statement statement(const char* sql);
    void begin();
    void remove(std::int64_t draft);
    void close();

    std::string folder_;
    std::string file_;
    std::unique_ptr<sqlite3, Close> database_;
    /// Prepared once; the key is the text of the statement in the program.
    std::map<const char*, std::unique_ptr<sqlite3_stmt, Finish>> prepared_;

    std::int64_t present_ = 0;
    /// The draft that `next` has returned, and its turn: each commit gives the present draft the highest.
    std::int64_t offered_ = 0;
    std::int64_t offered_turn_ = std::numeric_limits<std::int64_t>::max();
    /// Goes with the next commit, when another draft has been taken up in its place.
    std::int64_t replaced_ = 0;
};

}  // namespace machine::drafts
