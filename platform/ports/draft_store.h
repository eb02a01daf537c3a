#pragma once

#include "platform/text/calendar.h"
#include "platform/text/text.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>

namespace platform {

/// A recipient of a draft as its row shows it.
struct KeptRecipient {
    Text name;
    Text number;
    Text status;
    Text title;
    /// Which pieces of a text are registered for it.
    Text pieces;
    bool checked = false;

    bool operator==(const KeptRecipient&) const = default;
};

/// What is kept of a draft beside its recipients.
struct KeptDraft {
    std::map<Text, Text> fields;
    /// When it was written last.
    LocalTime written{};
    /// Whether the program has ended in order since, or the user has declined the draft.
    bool at_rest = false;
};

/// The drafts on the disk, so that they outlive the program: the present one and a few before it. Each method
/// raises a RuntimeError when the disk fails it; what has been put since the last commit is dropped then.
class DraftStore {
  public:
    virtual ~DraftStore() = default;

    /// The next draft of an earlier run: at first the one that was kept last, then the one before it, and so
    /// on; nothing when none is left. Raises ErrorNumber::database_unusable when the file is damaged.
    virtual std::optional<KeptDraft> next() = 0;
    /// The recipients of that draft in the order of their rows.
    virtual void read_recipients(const std::function<void(KeptRecipient)>& read) = 0;
    /// Makes that draft the present one, in place of what has been kept since the start.
    virtual void take_up() = 0;
    /// Puts that draft at rest.
    virtual void decline() = 0;

    // The present draft. A reader finds all that was put before a commit, or nothing of it, even when the
    // machine stops meanwhile. The first commit makes the draft.
    virtual void put_field(TextView name, const Text& value) = 0;
    virtual void put_recipient(std::size_t row, const KeptRecipient& recipient) = 0;
    /// Removes the rows from this one on.
    virtual void remove_recipients_from(std::size_t row) = 0;
    virtual void commit(LocalTime now, bool at_rest) = 0;

    /// Gives a damaged file another name, and returns the name. Nothing of it is kept in use.
    virtual Text set_aside() = 0;
};

}  // namespace platform
