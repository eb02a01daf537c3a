#include "compose/kept_draft_bar.h"

namespace compose {

KeptDraftBar::KeptDraftBar(platform::Form& form) : Room(form) {
    put_into(KeptDraft, {&KeptDraftText, &KeptDraftTakeUp, &KeptDraftClose});
    KeptDraft.hide();
    KeptDraftClose.Click.connect([this] { close(); });
}

void KeptDraftBar::show(platform::Text text, bool with_offer) {
    KeptDraftText.set_caption(std::move(text));
    KeptDraftTakeUp.set_visible(with_offer);
    KeptDraft.show();
}

}  // namespace compose
