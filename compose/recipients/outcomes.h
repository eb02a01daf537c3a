#pragma once

#include "compose/recipient_list.h"
#include "compose/room.h"
#include "platform/controls/buttons.h"
#include "platform/ports/platform.h"

namespace compose {

/// What the user does with recipients after a job: with those for whom it failed, and with those who are
/// done.
class RecipientOutcomes : Room {
  public:
    RecipientOutcomes(platform::Form& form, platform::Platform& platform, RecipientList& recipients);

    platform::Menu mnuNextFailed{form_, u"mnuNextFailed", u"다음 실패(&N)"};
    platform::Menu mnuPreviousFailed{form_, u"mnuPreviousFailed", u"이전 실패(&P)"};
    platform::Menu mnuSelectFailed{form_, u"mnuSelectFailed", u"실패한 번호만 선택(&L)"};
    platform::Menu mnuCopyFailed{form_, u"mnuCopyFailed", u"실패한 번호 복사(&Y)"};
    platform::Menu mnuTakeAwayDone{form_, u"mnuTakeAwayDone", u"등록성공 줄 지우기(&K)"};

    /// Goes to the first recipient whom the job has left: one for whom it failed or, after a stop, one who is
    /// still to be sent to. Does nothing when it has left nobody.
    void go_to_first_left();

  private:
    /// The nearest failed row in that direction from the selected one; the search goes round.
    void go_to_failed(bool forward);
    void select_failed();
    void copy_failed();
    void take_away_done();

    platform::Platform& platform_;
    RecipientList& recipients_;
};

}  // namespace compose
