#pragma once

#include "platform/ports/draft_store.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace machine::drafts {

/// The drafts in an SQLite database, which survives a kill and a power cut. Only its user can read the file.
/// It is opened at the first use.
class SqliteDraftStore : public platform::DraftStore {
  public:
    /// The file lies in the folder; its name is another for each application directory.
    SqliteDraftStore(std::string folder, const std::string& application_directory);
    ~SqliteDraftStore() override;

    std::optional<platform::KeptDraft> last() override;
    void read_recipients(const std::function<void(platform::KeptRecipient)>& read) override;
    void take_up_last() override;
    void decline_last() override;
    void put_field(platform::TextView name, const platform::Text& value) override;
    void put_recipient(std::size_t row, const platform::KeptRecipient& recipient) override;
    void remove_recipients_from(std::size_t row) override;
    void commit(platform::LocalTime now, bool at_rest) override;
    platform::Text set_aside() override;

  private:
    class Statement;
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
    void check(int result);
    void close();

    std::string folder_;
    std::string file_;
    std::unique_ptr<sqlite3, Close> database_;
    /// Prepared once; the key is the text of the statement in the program.
    std::map<const char*, std::unique_ptr<sqlite3_stmt, Finish>> prepared_;
    std::int64_t last_ = 0;
    std::int64_t present_ = 0;
};

}  // namespace machine::drafts
