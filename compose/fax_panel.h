#pragma once

#include "platform/controls/buttons.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/displays.h"
#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/panels.h"
#include "platform/ports/platform.h"

namespace compose {

/// The documents of a fax.
class FaxPanel {
  public:
    /// `dialog` asks for documents.
    FaxPanel(platform::Form& form, platform::Platform& platform, platform::CommonDialog& dialog);

    platform::Frame Frame1;
    platform::Label Label3_2;
    platform::ListView FAX1;
    platform::CommandButton FAXBttn1;
    platform::CommandButton FAXBttn2;
    platform::Label FAXFileSize1;
    platform::Label Label1_3;

    /// Shows the size of all documents together.
    void FAX_SIZE_CAPTION();

  private:
    void add_document();

    platform::Platform& platform_;
    platform::CommonDialog& dialog_;
};

}  // namespace compose
