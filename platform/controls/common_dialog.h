#pragma once

#include "platform/ports/desktop.h"
#include "platform/ports/files.h"
#include "platform/text/text.h"

namespace platform {

/// The file dialog of a form, shared by its handlers. It keeps the last choice, so that a handler that asks
/// again offers it.
class CommonDialog {
  public:
    explicit CommonDialog(Desktop& desktop) : desktop_(desktop) {}

    /// Title and filter ("name|pattern|…") for the next question. The last choice is forgotten; `proposal` is
    /// the file name to offer instead.
    void set_up(Text title, Text filter, Text proposal = {});

    /// Each raises RuntimeError 32755 when the user cancels; the file name then stays as it was.
    void show_open() { show(FileQuestion::Purpose::open); }
    void show_save() { show(FileQuestion::Purpose::save); }

    /// Asks where to save until the name is free or the user agrees to write over its file; false when the
    /// user gives up at that question. RuntimeError 32755 when the user cancels the dialog.
    bool choose_free_name(const Files& files);

    /// The full path.
    const Text& file_name() const { return question_.file_name; }

  private:
    void show(FileQuestion::Purpose purpose);

    Desktop& desktop_;
    FileQuestion question_;
};

}  // namespace platform
