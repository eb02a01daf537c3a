// The main window's byte limits while a syllable is unfinished.

#include "compose/main_form.h"
#include "core/byte_length.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/multiline_edit.h"
#include "send/send_check.h"
#include "tests/screen/program_fixture.h"
#include "tests/screen/screen_fixture.h"
#include "tests/support/utf8.h"
#include "tests/support/windows_on_doubles.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTabBar>
#include <optional>
#include <utility>

namespace tests {
namespace {

using platform::Text;

/// What an input method does when the field ends a composition, or when the focus leaves the text fields.
enum class Manner {
    /// Nothing: it relies on the field.
    silent,
    /// Commits what it has, though the field may have done so already, and only then forgets it. When the
    /// field resets it, it commits once more, into whichever field has the focus by then.
    commits_again,
};

class InputMethod : public QObject {
  public:
    explicit InputMethod(Manner manner) : manner_(manner) { qApp->installEventFilter(this); }

    void compose(const QString& commit, const QString& unfinished) {
        // A box that has just closed returns the focus a little later.
        QCoreApplication::processEvents();
        unfinished_ = unfinished;
        send(commit, unfinished);
    }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (manner_ == Manner::silent || unfinished_.isEmpty() || object != QApplication::focusWidget() ||
            event == own_) {
            return false;
        }
        if (event->type() == QEvent::FocusAboutToChange) {
            send(unfinished_, {});
            forget();
        } else if (event->type() == QEvent::InputMethod) {
            forget();
        }
        return false;
    }

  private:
    void forget() {
        if (unfinished_.isEmpty()) return;
        QMetaObject::invokeMethod(
            this, [this, late = std::exchange(unfinished_, {})] { send(late, {}); }, Qt::QueuedConnection);
    }
    void send(const QString& commit, const QString& unfinished) {
        QWidget* field = QApplication::focusWidget();
        if (field == nullptr) return;
        QInputMethodEvent event(unfinished, {});
        event.setCommitString(commit);
        const QScopedValueRollback<QEvent*> own(own_, &event);
        QCoreApplication::sendEvent(field, &event);
    }

    Manner manner_;
    QString unfinished_;
    QEvent* own_ = nullptr;
};

/// The main window while one of its texts is being written.
struct Draft : WindowsOnDoubles {
    Draft(compose::MessageKind kind, Manner manner) : method(manner), kind(kind) {
        state.session.gLoggedIn = true;
        form.show();
        QCoreApplication::processEvents();
        form.choose(kind);
        form.sender.txtCallback.set_text(u"02-123-4567");
        form.recipients.ListView1.add_row(u"", {u"김", u"010-1234-5678", u"", u""}, true);
        form.voice.ttsText.set_text(u"안내");
    }
    ~Draft() {
        form.unload();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    platform::TextBox& field() {
        return kind == compose::MessageKind::text ? form.text.mText1 : form.plus.mText2;
    }
    const char* field_name() const { return kind == compose::MessageKind::text ? "mText1" : "mText2"; }

    void write(const Text& text) {
        field().set_focus();
        field().set_text(text);
        field().set_caret_to_end();
    }

    /// Types the steps of a syllable up to its end.
    void type_han() {
        leave_han_unfinished();
        method.compose("한", "");
    }
    void leave_han_unfinished() {
        for (const char* step : {"ㅎ", "하", "한"}) method.compose("", step);
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QCoreApplication::processEvents();
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        key(Qt::Key_V, Qt::ControlModifier);
    }

    BoxPlayer boxes;
    HastyClock clock;
    platform::Platform hasty = with(platform, {.clock = &clock});
    InputMethod method;
    compose::MessageKind kind;
    compose::frmZent form{
        hasty, state, {.send = [this] { send::check_and_send(hasty, state, form, keeper); }}};
    drafts::DraftKeeper keeper{hasty, form};
};

/// Line ends, of two bytes each; the subject drops them.
const Text LINES = [] {
    Text text;
    for (int i = 0; i < 35; ++i) text += platform::CRLF;
    return text;
}();
const Text AT_74 = LINES + u"가나";
const Text AT_76 = LINES + u"가나다";
const Text AT_78 = LINES + u"가나다라";
const Text AT_79 = LINES + u"가나다라a";

struct Case {
    const char* name;
    /// The caret is at its end.
    Text before;
    std::function<void(Draft&)> act;
    /// The boxes that open: Y or N for the question about a long text with its answer, ! for the warning.
    std::string boxes;
    Text after;
    Text subject;
    /// The end of the text if not given.
    std::optional<std::size_t> caret = {};
};

class HangulLimits : public DeskTest {
  protected:
    void play(compose::MessageKind kind, const std::vector<Case>& cases) {
        for (const Manner manner : {Manner::silent, Manner::commits_again}) {
            for (const Case& c : cases) {
                SCOPED_TRACE(std::string(c.name) + (manner == Manner::silent ? "" : ", committed again"));
                Draft draft(kind, manner);
                expect_boxes(draft, c.boxes);
                draft.write(c.before);
                c.act(draft);
                settle();
                check(draft, c);
                // No unfinished syllable is left that another key would bring back.
                draft.field().set_focus();
                draft.key(Qt::Key_End, Qt::ControlModifier);
                settle();
                EXPECT_EQ(utf8(draft.field().text()), utf8(c.after));
            }
        }
    }

    static void expect_boxes(Draft& draft, const std::string& boxes) {
        for (const char box : boxes) {
            draft.boxes.answers.push_back(box == 'Y'   ? QMessageBox::Yes
                                          : box == 'N' ? QMessageBox::No
                                                       : QMessageBox::Ok);
        }
    }

    static void check(Draft& draft, const Case& c) {
        const platform::TextBox& field = draft.field();
        const auto& edit = find<machine::qt::MultilineEdit>(draft.field_name());
        EXPECT_EQ(utf8(field.text()), utf8(c.after));
        EXPECT_EQ(edit.committed_text().toStdString(), machine::qt::shown_text(c.after).toStdString());
        const std::size_t caret = c.caret.value_or(c.after.size());
        EXPECT_EQ(field.selection_start(), caret);
        EXPECT_EQ(field.selection_length(), 0U);
        EXPECT_EQ(edit.textCursor().position(), machine::qt::shown_position(c.after, caret));

        const auto bytes = core::BYTE_LEN(c.after);
        if (draft.kind == compose::MessageKind::text) {
            EXPECT_EQ(utf8(draft.form.text.mHLen1.caption()), std::to_string(bytes) + "Bytes");
            EXPECT_EQ(draft.form.text.mHLen3.visible(), bytes > compose::TEXT_LIMIT);
        } else {
            EXPECT_EQ(utf8(draft.form.plus.mHLen2.caption()), std::to_string(bytes) + "/80Byte");
        }
        EXPECT_EQ(utf8(draft.form.subject.subjectText.text()), utf8(c.subject));
        EXPECT_EQ(find<QLineEdit>("subjectText").text().toStdString(), utf8(c.subject));

        std::string boxes;
        for (const QString& text : draft.boxes.asked) {
            boxes += text.contains("입력하시겠습니까")      ? '?'
                     : text.contains("80Byte를 넘었습니다") ? '!'
                                                            : 'x';
        }
        std::string expected = c.boxes;
        for (char& box : expected) box = box == '!' ? '!' : '?';
        EXPECT_EQ(boxes, expected);
        EXPECT_EQ(field.has_focus(), edit.hasFocus());
    }
};

void press(const char* button) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != QStringLiteral("frmZent")) continue;
        QTest::mouseClick(window->findChild<QWidget*>(QString::fromLatin1(button)), Qt::LeftButton);
        return;
    }
    throw std::logic_error(button);
}

void han(Draft& draft) { draft.type_han(); }

void han_and_the_next(Draft& draft) {
    draft.leave_han_unfinished();
    draft.method.compose("한", "ㄱ");
}

/// Before the letters and after the line ends.
void han_in_the_middle(Draft& draft) {
    draft.field().select(LINES.size(), 0);
    draft.type_han();
}

void paste_behind_han(Draft& draft) {
    draft.type_han();
    draft.paste("마바사");
}

void paste_before_the_end_of_han(Draft& draft) {
    draft.leave_han_unfinished();
    draft.paste("마바사");
    draft.method.compose("한", "");
}

void emoticon(Draft& draft) {
    draft.leave_han_unfinished();
    press("mBttn1_5");
}

void click_subject(Draft& draft) {
    draft.leave_han_unfinished();
    press("subjectText");
}

/// Too long to follow the text. Whether a subject that follows is updated before or after the refusal differs
/// between desktops.
const Text OWN_SUBJECT = u"열다섯 글자보다 더 긴 제목";

void click_subject_of_its_own(Draft& draft) {
    draft.form.subject.subjectText.set_text(OWN_SUBJECT);
    click_subject(draft);
}

TEST_F(HangulLimits, ATextMessageAsksOnceAndLosesAndDoublesNoSyllable) {
    play(compose::MessageKind::text,
         {
             {"to exactly 80", AT_78, han, "", AT_78 + u"한", u"가나다라한"},
             {"over, yes", AT_79, han, "Y", AT_79 + u"한", u"가나다라a한"},
             {"over, no", AT_79, han, "N!", AT_79, u"가나다라a"},
             {"the next begun, yes", AT_79, han_and_the_next, "Y", AT_79 + u"한ㄱ", u"가나다라a한"},
             {"the next begun, no", AT_79, han_and_the_next, "N!", AT_79, u"가나다라a"},
             {"in the middle, below", AT_74, han_in_the_middle, "", LINES + u"한가나", u"한가나",
              LINES.size() + 1},
             {"in the middle, yes", AT_79, han_in_the_middle, "Y", LINES + u"한가나다라a", u"한가나다라a"},
             {"in the middle, no", AT_79, han_in_the_middle, "N!", LINES + u"한가나다라", u"한가나다라"},
             {"paste, yes", AT_74, paste_behind_han, "Y", AT_74 + u"한마바사", u"가나한마바사"},
             {"paste, no", AT_74, paste_behind_han, "N!", AT_74 + u"한마바", u"가나한마바"},
             {"paste in front of the unfinished syllable", AT_74, paste_before_the_end_of_han, "Y",
              AT_74 + u"마바사한", u"가나마바사한"},
             {"emoticon to exactly 80", AT_76, emoticon, "", AT_76 + u"한○", u"가나다한○"},
             {"emoticon over, yes", AT_78, emoticon, "Y", AT_78 + u"한○", u"가나다라한○"},
             {"emoticon over, no", AT_78, emoticon, "N!", AT_78 + u"한", u"가나다라한"},
             {"syllable over by an emoticon, yes", AT_79, emoticon, "Y", AT_79 + u"한○", u"가나다라a한"},
             {"syllable over by an emoticon, no, no", AT_79, emoticon, "N!N!", AT_79, u"가나다라a"},
         });
}

TEST_F(HangulLimits, BackspaceInALongTextRemovesLettersAndSyllablesWithoutABox) {
    play(compose::MessageKind::text, {{"above the limit", AT_79,
                                       [](Draft& draft) {
                                           for (const char* syllable : {"한", "글"})
                                               draft.method.compose(syllable, "");
                                           for (const char* step : {"ㅁ", "마", "ㅁ", ""})
                                               draft.method.compose("", step);
                                           draft.key(Qt::Key_Backspace);
                                       },
                                       "Y", AT_79 + u"한", u"가나다라a한"}});
}

TEST_F(HangulLimits, APlaceholderGoesBehindTheUnfinishedSyllableOfAnUnlimitedText) {
    play(compose::MessageKind::text, {{"chosen by the mouse", AT_79,
                                       [](Draft& draft) {
                                           draft.form.text.Check1.set_checked(true);
                                           draft.leave_han_unfinished();
                                           press("Combo3");
                                           QWidget* rows = find<QComboBox>("Combo3").view();
                                           QTest::keyClick(rows, Qt::Key_Down);
                                           QTest::keyClick(rows, Qt::Key_Return);
                                           // This desktop leaves no window active behind a list.
                                           find("mText1").activateWindow();
                                           EXPECT_EQ(draft.form.text.Combo3.list_index(), 1);
                                       },
                                       "", AT_79 + u"한{이름}", u"가나다라a한"}});
}

TEST_F(HangulLimits, APlusMessageWarnsAndIsCut) {
    play(compose::MessageKind::plus,
         {
             {"to exactly 80", AT_78, han, "", AT_78 + u"한", u"가나다라한"},
             {"over", AT_79, han, "!", AT_79, u"가나다라a"},
             {"the next begun", AT_79, han_and_the_next, "!", AT_79, u"가나다라a"},
             {"in the middle, below", AT_74, han_in_the_middle, "", LINES + u"한가나", u"한가나",
              LINES.size() + 1},
             {"in the middle", AT_79, han_in_the_middle, "!", LINES + u"한가나다라", u"한가나다라"},
             {"paste", AT_74, paste_behind_han, "!", AT_74 + u"한마바", u"가나한마바"},
         });
}

TEST_F(HangulLimits, AClickIntoTheSubjectEndsTheSyllableFirst) {
    const std::vector<Case> both{
        {"below", AT_74, click_subject, "", AT_74 + u"한", u"가나한"},
        {"to exactly 80", AT_78, click_subject, "", AT_78 + u"한", u"가나다라한"},
    };
    play(compose::MessageKind::text, both);
    play(compose::MessageKind::text,
         {{"over, yes", AT_79, click_subject, "Y", AT_79 + u"한", u"가나다라a한"},
          {"over, no", AT_79, click_subject_of_its_own, "N!", AT_79, OWN_SUBJECT}});
    play(compose::MessageKind::plus, both);
    play(compose::MessageKind::plus, {{"over", AT_79, click_subject, "!", AT_79, u"가나다라a"}});
}

TEST_F(HangulLimits, AKeyThatComesWhileTheQuestionIsOpenOpensNoSecondBox) {
    const auto end_by_period = [](Draft& draft) {
        auto& edit = find<machine::qt::MultilineEdit>("mText1");
        draft.boxes.meanwhile = [&] {
            if (draft.boxes.asked.size() == 1) QTest::keyClick(&edit, Qt::Key_Period);
        };
        draft.type_han();
    };
    play(compose::MessageKind::text, {
                                         {"yes", AT_79, end_by_period, "Y", AT_79 + u"한.", u"가나다라a한"},
                                         {"no", AT_79, end_by_period, "N!", AT_79, u"가나다라a"},
                                     });
}

TEST_F(HangulLimits, TheRestOfAShortcutDoesNotAnswerTheQuestion) {
    const auto hold_ctrl = [](Draft& draft) {
        draft.boxes.meanwhile = [] {
            const auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
            for (QAbstractButton* button : box.buttons()) {
                QTest::keyClick(button, Qt::Key_Return, Qt::ControlModifier);
                EXPECT_TRUE(box.isVisible());
            }
        };
        draft.type_han();
    };
    play(compose::MessageKind::text, {{"no", AT_79, hold_ctrl, "N!", AT_79, u"가나다라a"}});
}

TEST_F(HangulLimits, AnotherKindBeginsItsTextWithoutTheUnfinishedSyllable) {
    for (const Manner manner : {Manner::silent, Manner::commits_again}) {
        for (const std::string boxes : {"Y", "N!"}) {
            SCOPED_TRACE(boxes);
            Draft draft(compose::MessageKind::text, manner);
            expect_boxes(draft, boxes);
            draft.form.sender.txtUserName.set_text(u"홍");
            draft.write(AT_79);
            draft.leave_han_unfinished();
            auto& tabs = find<QTabBar>("TabStrip1");
            const auto click_tab = [&](compose::MessageKind kind) {
                QTest::mouseClick(&tabs, Qt::LeftButton, {},
                                  tabs.tabRect(static_cast<int>(kind) - 1).center());
                settle();
            };
            click_tab(compose::MessageKind::plus);
            EXPECT_EQ(draft.boxes.asked.size(), boxes.size());
            EXPECT_EQ(draft.form.text.mText1.text(), boxes == "Y" ? AT_79 + u"한" : AT_79);
            EXPECT_EQ(draft.form.subject.subjectText.text(), boxes == "Y" ? u"가나다라a한" : u"가나다라a");

            draft.kind = compose::MessageKind::plus;
            const Text plus = u"[홍]\r\n\r\n\r\n\r\n☎통화를눌러확인하세요";
            EXPECT_EQ(draft.form.plus.mText2.text(), plus);
            EXPECT_EQ(find<machine::qt::MultilineEdit>("mText2").committed_text(),
                      machine::qt::shown_text(plus));
            draft.field().set_focus();
            draft.leave_han_unfinished();
            click_tab(compose::MessageKind::text);
            EXPECT_EQ(draft.form.plus.mText2.text(), Text(plus).insert(3, u"한")) << "behind the sender";
            EXPECT_EQ(draft.form.text.mText1.text(), u"[홍]");
            EXPECT_EQ(find<machine::qt::MultilineEdit>("mText1").committed_text(), "[홍]");
        }
    }
}

/// Sends a text with an unfinished last syllable.
class HangulSending : public HangulLimits {
  protected:
    static void send(Draft& draft, bool by_key) {
        WindowPlayer user;
        bool reported = false;
        user.in_window("frmSBox", [](QWidget& window) {
            QTest::mouseClick(window.findChild<QWidget*>("Command1"), Qt::LeftButton);
        });
        user.in_window("frmSendEndBox", [&](QWidget& window) {
            reported = true;
            QTest::mouseClick(window.findChild<QWidget*>("Command2"), Qt::LeftButton);
        });
        if (by_key) {
            draft.key(Qt::Key_Return, Qt::ControlModifier);
        } else {
            press("Command1");
        }
        EXPECT_TRUE(QTest::qWaitFor([&] { return reported; }));
    }

    static std::vector<Text> sent(const Draft& draft) {
        std::vector<Text> texts;
        for (const auto& registration : draft.machine.carrier.registrations)
            texts.push_back(registration.s_sms_content);
        return texts;
    }
};

TEST_F(HangulSending, SendsTheTextWithTheUnfinishedSyllable) {
    struct Sent {
        compose::MessageKind kind;
        Text before;
        std::string boxes;
        std::vector<Text> texts;
    };
    const Text syllables(39, u'가');
    for (const auto& [kind, before, boxes, texts] : std::vector<Sent>{
             {compose::MessageKind::text, syllables, "", {syllables + u"한"}},
             {compose::MessageKind::text, syllables + u"a", "Y", {syllables + u"a", u"한"}},
             {compose::MessageKind::text, syllables + u"a", "N!", {syllables + u"a"}},
             {compose::MessageKind::plus, syllables, "", {syllables + u"한"}},
             {compose::MessageKind::plus, syllables + u"a", "!", {syllables + u"a"}},
         }) {
        for (const Manner manner : {Manner::silent, Manner::commits_again}) {
            const bool by_key = manner == Manner::commits_again;
            SCOPED_TRACE(boxes + (by_key ? " by its key" : " by the mouse"));
            Draft draft(kind, manner);
            expect_boxes(draft, boxes);
            draft.write(before);
            draft.leave_han_unfinished();
            send(draft, by_key);
            EXPECT_EQ(draft.boxes.asked.size(), boxes.size());
            EXPECT_EQ(sent(draft), texts);
        }
    }
}

}  // namespace
}  // namespace tests
