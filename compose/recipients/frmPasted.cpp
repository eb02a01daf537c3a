#include "compose/recipients/frmPasted.h"

#include "core/centring.h"
#include "platform/text/format.h"

namespace compose {

using platform::Text;

namespace {

/// Few enough that the window keeps painted and its button works.
constexpr std::size_t LINES_A_TICK = 2000;

Text details(const PastedRecipients& pasted) {
    Text text;
    const auto add = [&text](platform::TextView what, std::size_t lines) {
        if (lines == 0) return;
        text += Text(text.empty() ? u"" : u" · ") + Text(what) + u" " + platform::counted(lines, u"줄");
    };
    add(u"이미 있는 번호", pasted.listed_before());
    add(u"보낼 수 없는 번호", pasted.refused());
    add(u"알아보지 못한 줄", pasted.not_understood());
    add(u"읽지 않은 줄", pasted.line_count() - pasted.lines_read());
    return text;
}

}  // namespace

frmPasted::frmPasted(platform::Platform& platform, RecipientList& recipients, Text text)
    : Form(platform.desktop, u"frmPasted"),
      Timer1(platform.clock, 1),
      recipients_(recipients),
      text_(std::move(text)) {
    set_caption(u"받는사람 가져오기");
    Command1.Click.connect([this] { begin(Text1.text()); });
    Command2.Click.connect([this] { unload(); });
    Command3.Click.connect([this] { stop(); });
    Timer1.Tick.connect([this] { read_on(); });
}

void frmPasted::Form_Load() { core::CENTER_FORM(desktop(), *this); }

void frmPasted::Form_Activate() {
    if (!pasted_) begin(text_);
}

void frmPasted::Form_Unload() {
    Timer1.set_enabled(false);
    filled_.reset();
    question_.reset();
}

void frmPasted::begin(const Text& text) {
    pasted_.emplace(recipients_, text);
    question_.emplace(desktop());
    filled_.emplace(recipients_.ListView1);
    Label1.set_caption(u"받는사람을 가져오는 중입니다...");
    Label2.set_caption(platform::counted(pasted_->line_count(), u"줄"));
    Label3.hide();
    Text1.hide();
    Command1.hide();
    Command2.hide();
    PBar1.set_value(0);
    PBar1.show();
    Command3.show();
    Command3.set_focus();
    Timer1.set_enabled(true);
}

void frmPasted::read_on() {
    pasted_->read(LINES_A_TICK);
    if (pasted_->at_end()) return stop();
    PBar1.set_progress(pasted_->lines_read(), pasted_->line_count());
}

void frmPasted::stop() {
    Timer1.set_enabled(false);
    filled_.reset();
    question_.reset();
    recipients_.RECIPIENT_COUNT_CAPTION();
    report();
}

void frmPasted::report() {
    PBar1.hide();
    Command3.hide();
    Label1.set_caption(u"받는사람 " + platform::counted(pasted_->added(), u"명을 추가했습니다."));
    Label2.set_caption(details(*pasted_));
    const Text left_over = pasted_->left_over();
    Text1.set_text(left_over);
    for (platform::Control* control :
         {static_cast<platform::Control*>(&Label3), static_cast<platform::Control*>(&Text1),
          static_cast<platform::Control*>(&Command1)})
        control->set_visible(!left_over.empty());
    Command2.show();
    left_over.empty() ? Command2.set_focus() : Text1.set_focus();
}

}  // namespace compose
