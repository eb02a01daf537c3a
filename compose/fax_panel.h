#pragma once

#include "compose/room.h"
#include "platform/controls/buttons.h"
#include "platform/controls/common_dialog.h"
#include "platform/controls/displays.h"
#include "platform/controls/list_view.h"
#include "platform/controls/panels.h"
#include "platform/formats/shown_path.h"
#include "platform/ports/platform.h"

namespace compose {

/// The documents of a fax.
class FaxPanel : Room {
  public:
    /// `dialog` asks for documents.
    FaxPanel(platform::Form& form, platform::Platform& platform, platform::CommonDialog& dialog);

    platform::Frame Frame1{form_, u"Frame1_2"};
    platform::Label Label3_2{form_, u"Label3_2", u"보낼문서:"};
    platform::ListView FAX1{form_, u"FAX1", {{.caption = u"보낼문서", .shown = platform::shown_path}}};
    platform::CommandButton FAXBttn1{form_, u"FAXBttn1", u"찾아보기..."};
    platform::CommandButton FAXBttn2{form_, u"FAXBttn2", u"삭제"};
    platform::Label FAXFileSize1{form_, u"FAXFileSize1"};
    platform::Label Label1_3;

    /// Adds the document's row.
    void add(const platform::Text& path);

    /// Shows the size of all documents together.
    void FAX_SIZE_CAPTION();

  private:
    void add_document();
    /// Adds the document if it can be faxed, or says why not.
    void take(const platform::Text& path);
    void refuse_more();

    platform::Platform& platform_;
    platform::CommonDialog& dialog_;
};

}  // namespace compose
