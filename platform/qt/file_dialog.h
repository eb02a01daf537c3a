#pragma once

#include "platform/ports/desktop.h"
#include "platform/ports/files.h"

#include <QString>
#include <optional>

class QWidget;

namespace platform::qt {

/// The dialog for a file's path. It opens where the user was last, at first in the documents' folder.
class FileDialog {
  public:
    /// The files have to outlive the dialog.
    explicit FileDialog(Files& files) : files_(files) {}

    /// Asks in front of the parent; nothing when the user cancels.
    std::optional<Text> ask(const FileQuestion& question, QWidget* parent);

  private:
    Files& files_;
    QString folder_;
};

}  // namespace platform::qt
