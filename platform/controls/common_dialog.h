#pragma once

#include "platform/ports/desktop.h"
#include "platform/ports/files.h"
#include "platform/text/text.h"

namespace platform {

/// The file dialog of a form, which several handlers share. It keeps what was chosen last, so that a handler
/// that asks again shows it.
class CommonDialog {
  public:
    explicit CommonDialog(Desktop& desktop) : desktop_(desktop) {}

    /// Title and filter ("name|pattern|…") for a new use; no file is chosen, but one may be proposed by its
    /// name.
    void set_up(Text title, Text filter, Text proposal = {});

    /// Each raises RuntimeError 32755 when the user cancels, and keeps the file name then.
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
