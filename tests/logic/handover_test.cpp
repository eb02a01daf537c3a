#include "handover/handover.h"

#include "platform/text/cp949.h"
#include "tests/support/main_window.h"

#include <gtest/gtest.h>

namespace {

using platform::Text;
using tests::utf8;
using Rows = std::vector<std::string>;

const Text SIGNAL = u"z:\\app\\temp\\isend.text";
const Text RECIPIENTS = u"z:\\app\\temp\\tmpman.txt";

struct HandOver : testing::Test, tests::MainWindow {
    HandOver() {
        form.load();
        form.Timer1.set_enabled(true);
    }

    void hand(const std::string& signal, const Text& recipients) {
        files.files[SIGNAL] = signal;
        files.files[RECIPIENTS] = platform::encode_cp949(recipients);
    }
    void take_in() { hand_over.NEW_SENDMAN_LOAD(); }

    handover::HandOver hand_over{platform, state, form};

    Rows rows() const { return rows(form.recipients.ListView1); }
    static Rows rows(const platform::ListView& list) {
        Rows all;
        for (std::size_t row = 0; row < list.row_count(); ++row) {
            const platform::ListItem& item = list.row(row);
            all.push_back(utf8(item.sub_item(1) + u"|" + item.sub_item(2) + u"|" + item.sub_item(4)));
        }
        return all;
    }
};

TEST_F(HandOver, RecipientsAreAddedAndTheirTabIsChosen) {
    hand("4", u"x\t홍길동\t010-1111-2222\t부장\r\nx\t김:영;희\t02)333-4444\t3급\r\n");
    take_in();
    EXPECT_EQ(rows(), (Rows{"홍길동|01011112222|부장", "김영희|023334444|3"}));
    EXPECT_EQ(kind_of(form).kind, compose::MessageKind::fax);
    EXPECT_EQ(utf8(form.recipients.Label4.caption()), "전체>2>대상>2");
    EXPECT_EQ(form.recipients.ListView1.selected_item(), 1u);
    EXPECT_FALSE(form.recipients.ListView1.row(0).selected());
    EXPECT_FALSE(form.recipients.PBar1.visible());
    EXPECT_TRUE(files.files.empty());
    EXPECT_TRUE(form.Timer1.enabled());
}

TEST_F(HandOver, LinesAreReadAsFarAsTheyMakeSense) {
    const struct {
        const char* what;
        Text file;
        Rows rows;
    } files[] = {
        {"short lines hold nobody", u"1234\t678\r\n\r\nx\tA\t0101\r\nx\tA\t01012\r\n", {"A|01012|"}},
        {"a missing title is the one before",
         u"x\tA\t0101111\tT1\r\nx\tB\t0102222\r\n",
         {"A|0101111|1", "B|0102222|1"}},
        {"a missing number is the one before, which is listed",
         u"x\tA\t0101111\r\nx\tBBBBBBB\r\n",
         {"A|0101111|"}},
        {"a missing number on the first line is none", u"x\tAAAAAAAA\r\n", {}},
        {"an empty name has a stand-in", u"x\t :; \t0101111\r\n", {"이름없음|0101111|"}},
        {"an empty number is skipped, its title stays",
         u"x\tA\t \tT7890\r\nx\tB\t0101111\r\n",
         {"B|0101111|7890"}},
        {"a text is a number here", u"x\tA\t회사번호\tT\r\n", {"A|회사번호|T"}},
        {"what begins a listed number, name or title is listed",
         u"x\t0205\t0101234567\t77\r\nx\tB\t010123\r\nx\tC\t77\t12\r\nx\tD\t02-05\r\nx\tE\t01012345678\r\n",
         {"0205|0101234567|77", "E|01012345678|12"}},
        {"no line end at the end", u"x\tA\t0101111\r\nx\tB\t0102222", {"A|0101111|", "B|0102222|"}},
        {"other systems' line ends",
         u"x\tA\t0101111\nx\tB\t0102222\rx\tC\t0103333\r\n",
         {"A|0101111|", "B|0102222|", "C|0103333|"}},
        {"fields too many", u"x\tA\t0101111\tT\tU\tV\r\n", {"A|0101111|T"}},
        {"NUL bytes", u"x\t" + Text(1, u'\0') + u"A\t010" + Text(1, u'\0') + u"1111\r\n", {"A|0101111|"}},
        {"nothing but line ends", u"\r\n\r\n\n", {}},
    };
    for (const auto& file : files) {
        tests::MainWindow window;
        window.form.load();
        window.files.files[SIGNAL] = "1";
        window.files.files[RECIPIENTS] = platform::encode_cp949(file.file);
        handover::HandOver(window.platform, window.state, window.form).NEW_SENDMAN_LOAD();
        EXPECT_EQ(rows(window.form.recipients.ListView1), file.rows) << file.what;
        EXPECT_FALSE(window.form.recipients.PBar1.visible()) << file.what;
    }
}

TEST_F(HandOver, BytesThatAreNoTextDoNoHarm) {
    hand("1", u"");
    files.files[RECIPIENTS] = "\xFF\xFE\t\x81\xFF\xC8\t0101111\xC8\t\x80\r\nx\tA\t0102222\r\n\xB1";
    take_in();
    EXPECT_EQ(rows(), Rows{"A|0102222|"});
}

TEST_F(HandOver, TheSignalIsANumberOfSixteenBits) {
    const struct {
        const char* signal;
        int tab;
    } rows[] = {
        {"2", 2},     {" 3abc", 3}, {"2.5", 2}, {"3.5", 4}, {"", 1},   {"x", 1},  {"0", 1},
        {"32768", 1}, {"1e99", 1},  {"x2", 1},  {"9", 3},   {"-1", 3}, {"49", 3}, {"54", 3},
    };
    for (const auto& row : rows) {
        form.choose(compose::MessageKind::voice);
        hand(row.signal, u"x\tA\t0101111\r\n");
        take_in();
        EXPECT_EQ(form.TabStrip1.selected(), row.tab) << row.signal;
        EXPECT_TRUE(files.files.empty());
    }
    EXPECT_EQ(form.recipients.ListView1.row_count(), 1u) << "the same recipient again and again";
}

TEST_F(HandOver, WithoutASignalNothingHappensAndASignalWaitsForTheJobToEnd) {
    form.choose(compose::MessageKind::voice);
    files.files[RECIPIENTS] = "x\tA\t0101111\r\n";
    take_in();
    state.forms.gSendFormOpen = true;
    files.files[SIGNAL] = "1";
    take_in();
    EXPECT_EQ(files.files.size(), 2u);
    EXPECT_EQ(form.recipients.ListView1.row_count(), 0u);
    state.forms.gSendFormOpen = false;
    take_in();
    EXPECT_EQ(form.recipients.ListView1.row_count(), 1u);
}

TEST_F(HandOver, IsThrownAwayWhileAPageIsOpenOrWithoutRecipients) {
    form.choose(compose::MessageKind::voice);
    state.forms.gWebFormOpen = true;
    hand("1", u"x\tA\t0101111\r\n");
    take_in();
    EXPECT_TRUE(files.files.empty());
    state.forms.gWebFormOpen = false;
    files.files[SIGNAL] = "1";
    take_in();
    hand("1", u"");
    take_in();
    EXPECT_TRUE(files.files.empty());
    EXPECT_EQ(form.recipients.ListView1.row_count(), 0u);
    EXPECT_EQ(kind_of(form).kind, compose::MessageKind::voice);
    EXPECT_TRUE(form.Timer1.enabled());
}

TEST_F(HandOver, FilesThatCannotBeDeletedAreTakenInOnceAndPollingGoesOnWithoutABox) {
    hand("2", u"x\tA\t0101111\r\n");
    files.failure = platform::ErrorNumber::permission_denied;
    form.Timer1.Tick.connect([this] { take_in(); });
    clock.run_for(600);
    form.plus.mText2.set_text(u"a draft");
    clock.run_for(1600);
    EXPECT_EQ(rows(), Rows{"A|0101111|"});
    EXPECT_EQ(utf8(form.plus.mText2.text()), "a draft") << "the tab is not chosen again";
    EXPECT_TRUE(form.Timer1.enabled());

    hand("2", u"x\tB\t0102222\r\n");
    clock.run_for(600);
    EXPECT_EQ(rows(), (Rows{"A|0101111|", "B|0102222|"})) << "another hand-over";

    files.failure.reset();
    clock.run_for(600);
    EXPECT_TRUE(files.files.empty());
    hand("2", u"x\tB\t0102222\r\n");
    clock.run_for(600);
    EXPECT_NE(utf8(form.plus.mText2.text()), "a draft") << "the same people once more choose their tab again";
}

TEST_F(HandOver, APageWhoseSignalCannotBeDeletedOpensOnce) {
    state.session.gLoggedIn = true;
    state.session.gLoginResult = true;
    int opened = 0;
    const auto open_once = [&] {
        desktop.in_form(u"frmWeb", [&](platform::Form& page) {
            ++opened;
            page.unload();
        });
    };
    form.Timer1.Tick.connect([this] { take_in(); });
    open_once();
    hand("50", u"x\tA\t0101111\r\n");
    // The list goes, the signal only at the next try.
    files.changes_until_failure = {1, platform::ErrorNumber::permission_denied};
    clock.run_for(1600);
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(files.files.contains(SIGNAL));

    open_once();
    hand("50", u"");
    files.failure = platform::ErrorNumber::permission_denied;
    clock.run_for(1600);
    EXPECT_EQ(opened, 2);
    EXPECT_TRUE(form.Timer1.enabled());
}

TEST_F(HandOver, WhileItIsTakenInNoOtherOneStartsAndTheWindowIsPainted) {
    hand("1", u"x\tA\t0101111\r\nx\tB\t0102222\r\n");
    std::vector<int> progress;
    desktop.during_paint = [&] {
        EXPECT_FALSE(form.Timer1.enabled());
        EXPECT_FALSE(files.files.contains(SIGNAL)) << "taken from the manager before its list is read";
        progress.push_back(form.recipients.PBar1.visible() ? form.recipients.PBar1.value() : -1);
    };
    take_in();
    EXPECT_EQ(progress, (std::vector<int>{0, 50, 100}));
}

TEST_F(HandOver, WhatTheCardManagerWritesMeanwhileIsTakenInNext) {
    form.Timer1.Tick.connect([this] { take_in(); });
    int written = 1;
    // The next hand-over is written as soon as the signal of the one before is gone.
    desktop.during_paint = [&] {
        if (written < 40 && !files.files.contains(SIGNAL))
            hand("1", u"x\tA\t0101" + platform::decimal(1000 + ++written) + u"\r\n");
    };
    hand("1", u"x\tA\t01011001\r\n");
    clock.run_for(40 * 500);
    EXPECT_EQ(rows().size(), 40u);
    EXPECT_TRUE(files.files.empty());
}

TEST_F(HandOver, WaitsForTheAnswerOfAQuestionSoThatTheAnswerIsAboutWhatWasSeen) {
    form.Timer1.Tick.connect([this] { take_in(); });
    desktop.during_box = [this] {
        hand("4", u"x\t새사람\t0109999\r\n");
        clock.run_for(1000);
    };

    hand("1", u"x\tA\t0101111\r\nx\tB\t0102222\r\n");
    take_in();
    desktop.expect_box(tests::DELETE_ROWS, platform::BoxAnswer::yes);
    form.recipients.HBttn2.Click.raise();
    EXPECT_EQ(rows(), Rows{"A|0101111|"}) << "the row that was selected when the user was asked";
    clock.run_for(600);
    EXPECT_EQ(rows(), (Rows{"A|0101111|", "새사람|0109999|"}));

    desktop.expect_box(tests::START_ANEW, platform::BoxAnswer::yes);
    form.Command3.Click.raise();
    EXPECT_EQ(rows(), Rows{});
    clock.run_for(600);
    EXPECT_EQ(rows(), Rows{"새사람|0109999|"}) << "who came after the question was not meant by it";

    form.choose(compose::MessageKind::text);
    desktop.expect_box(tests::long_text_question(), platform::BoxAnswer::yes);
    form.text.mText1.set_text(Text(81, u'a'));
    EXPECT_EQ(utf8(form.text.mText1.text()), std::string(81, 'a'));
    EXPECT_EQ(utf8(form.text.mText1.tag()), "LONG");
}

TEST_F(HandOver, APageOpensForAUserWhoIsLoggedIn) {
    state.session.gLoggedIn = true;
    state.session.gLoginResult = true;
    Rows captions;
    for (const char* value : {"50", "51", "52", "53"}) {
        hand(value, u"x\tA\t0101111\r\n");
        desktop.in_form(u"frmWeb", [&](platform::Form& page) {
            captions.push_back(utf8(page.caption()));
            page.unload();
        });
        take_in();
        EXPECT_TRUE(files.files.empty());
    }
    EXPECT_EQ(captions, (Rows{"발송결과", "요금조회", "팩스수신", "가입자 정보 변경"}));
    EXPECT_EQ(form.Timer2.tag(), u"OK") << "the start does not log in a second time";
    EXPECT_EQ(form.recipients.ListView1.row_count(), 0u);
}

TEST_F(HandOver, APageAsksForALoginFirstAndStaysClosedWhenThatFails) {
    hand("51", u"");
    in_login([](gateway::frmZentLogin& login) { login.escape_pressed(); });
    take_in();
    EXPECT_TRUE(form.session.cmdLogin.enabled());
    EXPECT_FALSE(files.files.contains(SIGNAL));

    hand("51", u"");
    log_in(u"hong", u"secret");
    desktop.in_form(u"frmWeb", [&](platform::Form& page) {
        EXPECT_FALSE(form.Timer1.enabled()) << "the signal would be found again under the page";
        page.unload();
    });
    take_in();
    EXPECT_TRUE(form.Timer1.enabled());
}

}  // namespace
