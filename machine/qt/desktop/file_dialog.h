#pragma once

#include "platform/ports/desktop.h"
#include "platform/ports/files.h"

#include <QString>
#include <map>
#include <optional>

class QWidget;

namespace machine::qt {

/// The dialog for a file's path. It opens in the folder of the last choice under the same title, at first in
/// the documents' folder.
class FileDialog {
  public:
    /// The files have to outlive the dialog.
    explicit FileDialog(platform::Files& files) : files_(files) {}

    /// Asks in front of the parent; nothing when the user cancels.
    std::optional<platform::Text> ask(const platform::FileQuestion& question, QWidget* parent);

  private:
    platform::Files& files_;
    /// The folder of the last choice, by the dialog's title.
    std::map<platform::Text, QString> folders_;
};

}  // namespace machine::qt
