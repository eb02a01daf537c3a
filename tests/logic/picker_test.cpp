#include "tests/support/picking.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using addressbook::frmSendMan;
using platform::ErrorNumber;
using platform::MouseButton;
using platform::RuntimeError;
using platform::Text;
using platform::TreeNode;
using tests::utf8;
using Rows = std::vector<std::string>;

constexpr const char16_t* TEXT = u"문자메시지";
constexpr const char16_t* VOICE = u"음성메시지";
constexpr const char16_t* FAX = u"팩스메시지";
const platform::MessageBox NOT_FOUND =
    tests::critical(u"오류번호:53(z:\\app\\CardvaleDB.vdb)\r\n\r\n파일을 찾을 수 없습니다.");

struct Picker : testing::Test, tests::Picking {
    static Rows tree(frmSendMan& picker) {
        Rows rows;
        for (std::size_t i = 1; i <= picker.TreeView1.node_count(); ++i)
            rows.push_back(utf8(picker.TreeView1.node(i).full_path()));
        return rows;
    }
    static void click(frmSendMan& picker, std::size_t position) {
        picker.TreeView1.user_click(picker.TreeView1.node(position));
    }
    static void search(frmSendMan& picker, const Text& text) {
        picker.Text1.set_focus();
        picker.Text1.user_edit(text, text.size());
        platform::KeyPressed enter{platform::KEY_ENTER};
        picker.Text1.KeyPress.raise(enter);
        EXPECT_TRUE(enter.swallowed()) << "it would press the default button too";
    }
    static Rows list(frmSendMan& picker) {
        Rows rows;
        for (std::size_t row = 0; row < picker.ListView2.row_count(); ++row) {
            Text cells = picker.ListView2.row(row).text();
            for (int column = 1; column < picker.ListView2.column_count(); ++column)
                cells += u"|" + picker.ListView2.row(row).sub_item(column);
            rows.push_back(utf8(cells));
        }
        return rows;
    }
    void find_cards(int count) {
        found.assign(static_cast<std::size_t>(count), {.name = u"홍길동", .cellphone = u"010-1234-5678"});
    }
};

TEST_F(Picker, SaysHowManyRowsBecameRecipients) {
    found = {{.name = u"가", .cellphone = u"010-1111-2222"},
             {.name = u"나", .cellphone = u"없음"},
             {.name = u"다", .cellphone = u"010-1111-2222"}};
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_EQ(utf8(picker.Counts.caption()), "전체 2명 · 목록 3명 · 선택 0명");
        EXPECT_EQ(picker.ListView2.mark(0), platform::RowMark::none);
        EXPECT_EQ(picker.ListView2.mark(1), platform::RowMark::unusable);
        EXPECT_TRUE(picker.ListView2.column(4).in_use);
        EXPECT_EQ(utf8(picker.ListView2.column(4).shown(u"없음")), "번호 없음");
        platform::KeyPressed ctrl_a{platform::KEY_CTRL_A};
        picker.ListView2.KeyPress.raise(ctrl_a);
        EXPECT_EQ(utf8(picker.Counts.caption()), "전체 2명 · 목록 3명 · 선택 3명");
        picker.Command2[1].Click.raise();
        EXPECT_EQ(utf8(picker.Added.caption()), "1명 추가 · 받는사람 1명");
    });
    pick(VOICE, [](frmSendMan& picker) {
        picker.Combo2.user_choose(1);
        EXPECT_TRUE(picker.ListView2.column(4).in_use) << "the company's number";
        EXPECT_FALSE(picker.ListView2.column(3).in_use);
        EXPECT_EQ(picker.ListView2.mark(0), platform::RowMark::unusable) << "a mobile number alone";
    });
}

TEST_F(Picker, TypingSelectsTheFirstCardThatBeginsSoUnlessTheUserHasSelectedOthers) {
    found = {{.name = u"가"}, {.name = u"나", .company = u"Delta"}, {.name = u"델타"}};
    pick(TEXT, [&](frmSendMan& picker) {
        const auto typed = [&](const Text& text) {
            picker.Text1.user_edit(text, text.size());
            const auto selected = picker.ListView2.selected_item();
            return selected ? utf8(picker.ListView2.row(*selected).text()) : "none";
        };
        EXPECT_TRUE(picker.Text1.has_focus());
        EXPECT_EQ(typed(u"delta"), "나");
        EXPECT_EQ(typed(u"델"), "델타");
        EXPECT_EQ(typed(u"델x"), "none");
        platform::KeyPressed down{platform::KEY_DOWN};
        picker.Text1.KeyDown.raise(down);
        EXPECT_TRUE(picker.ListView2.has_focus());
        picker.Text1.set_focus();
        EXPECT_EQ(typed(u"델"), "가") << "selected by the user";
    });
}

TEST_F(Picker, KeepsItsOrderForTheNextOpening) {
    found = {{.name = u"나", .company = u"1"}, {.name = u"가", .company = u"2"}};
    pick(TEXT, [&](frmSendMan& picker) { picker.ListView2.ColumnClick.raise(3); });
    pick(FAX, [&](frmSendMan& picker) {
        EXPECT_EQ(utf8(picker.ListView2.row(0).text()), "가");
        EXPECT_EQ(picker.ListView2.column(2).picture, 1);
        picker.ListView2.ColumnClick.raise(2);
        click(picker, 2);
        EXPECT_EQ(utf8(picker.ListView2.row(0).text()), "나");
    });
}

TEST_F(Picker, SaysWhatASearchDidNotFind) {
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_EQ(utf8(picker.ListView2.placeholder()),
                  "명함이 없습니다.\n명함 관리 프로그램에서 먼저 등록하세요.");
        search(picker, u"없는이름");
        EXPECT_EQ(
            utf8(picker.ListView2.placeholder()),
            "'없는이름'(으)로 시작하는 이름이나 회사가 없습니다.\r\n'~를 포함'으로 바꾸어 찾아 보십시오.");
        click(picker, 2);
        EXPECT_EQ(utf8(picker.ListView2.placeholder()),
                  "이 폴더에는 명함이 없습니다.\n다른 폴더를 고르거나 전체자료를 누르세요.");
    });
}

TEST_F(Picker, TheTreeIsBuiltFromRowsInAnyOrderAndWithoutTheTrash) {
    folders = {{10, 20, u"4단계"},  {20, 30, u"3단계"},   {30, 1, u"2단계"},  {71, 72, u"버린 아이"},
               {72, 1000, u"버림"}, {1000, 0, u"휴지통"}, {1, 0, u"전체"},    {5, 30, u"미정"},
               {6, 1, u"미지정"},   {7, 30, u"(주)한빛"}, {8, 1, u"VIP (옛)"}};
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_EQ(tree(picker), (Rows{"전체(7)", "전체(7)/2단계(1)", "전체(7)/2단계(1)/미정(1)",
                                      "전체(7)/미지정(1)", "전체(7)/2단계(1)/(1)", "전체(7)/VIP (1)",
                                      "전체(7)/2단계(1)/3단계(1)", "전체(7)/2단계(1)/3단계(1)/4단계(1)"}));
        EXPECT_EQ(picker.T_INDEX(20), 7);
        EXPECT_EQ(picker.T_INDEX(72), -1) << "it went with the trash";
        EXPECT_EQ(utf8(picker.ALLDB_SQL()),
                  "f_idx=30 or f_idx=5 or f_idx=6 or f_idx=7 or f_idx=8 or f_idx=20 or f_idx=10");
        std::set<Text> keys;
        for (std::size_t i = 1; i <= picker.TreeView1.node_count(); ++i) {
            const Text& key = picker.TreeView1.node(i).key();
            EXPECT_EQ(key.size(), 32u);
            EXPECT_EQ(key.find_first_not_of(u"0123456789ABCDEF"), Text::npos);
            keys.insert(key);
        }
        EXPECT_EQ(keys.size(), 8u);
    });
}

TEST_F(Picker, NodesShowPicturesForTheirTypeAndForOpenFolders) {
    folders = {{2, 1, u"미지정"}, {3, 2, u"아이"}, {4, 1, u"거래처"}, {5, 4, u"서울"}};
    pick(TEXT, [&](frmSendMan& picker) {
        const auto pictures = [&] {
            std::vector<int> numbers;
            for (std::size_t i = 1; i <= picker.TreeView1.node_count(); ++i)
                numbers.push_back(picker.TreeView1.node(i).picture());
            return numbers;
        };
        EXPECT_EQ(pictures(), (std::vector<int>{1, 3, 2, 2, 2})) << "the top is open";
        for (std::size_t i = 1; i <= picker.TreeView1.node_count(); ++i)
            picker.TreeView1.set_expanded(picker.TreeView1.node(i), true);
        EXPECT_EQ(pictures(), (std::vector<int>{1, 3, 3, 2, 2})) << "what lies in an unassigned folder";
        picker.TreeView1.set_expanded(picker.TreeView1.node(3), false);
        EXPECT_EQ(pictures(), (std::vector<int>{1, 3, 2, 2, 2}));
    });
}

TEST_F(Picker, ADatabaseWithoutFoldersShowsOnlyTheTopAndListsAllCards) {
    folders = {{1, 0, u"전체"}, {1000, 0, u"휴지통"}};
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_EQ(tree(picker), Rows{"전체(0)"});
        EXPECT_NE(statement().find("FROM [tbl_namecard] a left"), std::string::npos);
    });
    folders.clear();
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_EQ(tree(picker), (Rows{"전체(1)", "휴지통(1)"}));
        EXPECT_NE(statement().find("FROM [tbl_namecard] a left"), std::string::npos);
    });
}

TEST_F(Picker, AWideAndDeepTreeOfFoldersIsBuiltQuickly) {
    folders.clear();
    for (int i = 5'000; i > 1; --i) folders.push_back({1000 + i, i % 2 == 0 ? 1 : 1000 + i - 1, u"폴더"});
    pick(TEXT, [&](frmSendMan& picker) { EXPECT_EQ(picker.TreeView1.node_count(), 5'000u); });
}

TEST_F(Picker, ADatabaseThatDoesNotOpenIsReportedAndTheWindowStaysUsable) {
    cards.refusal = RuntimeError(ErrorNumber::file_not_found);
    desktop.expect_box(NOT_FOUND);  // from the load
    desktop.expect_box(NOT_FOUND);  // from the counts
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_EQ(tree(picker), (Rows{"전체", "휴지통"}));
        desktop.expect_box(NOT_FOUND);
        search(picker, u"홍길동");
        desktop.expect_box(NOT_FOUND);
        click(picker, 2);
        picker.Command5.Click.raise();
        EXPECT_TRUE(list(picker).empty());
        EXPECT_EQ(picker.TreeView1.tag(), u"1000");
    });
}

TEST_F(Picker, WhileItIsOpenItStopsHandOversAndHasItsOwnConnection) {
    form.Timer1.set_enabled(true);
    state.forms.gDialogConfirmed = true;
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_FALSE(form.Timer1.enabled());
        EXPECT_FALSE(state.forms.gDialogConfirmed);
        EXPECT_EQ(cards.open_connections, 1);
        const auto connected = cards.connected.size();
        const auto statements = cards.statements.size();
        picker.TreeView1.MouseDown.raise(MouseButton::left);
        EXPECT_TRUE(desktop.popups.empty());
        picker.TreeView1.MouseDown.raise(MouseButton::right);
        EXPECT_EQ(desktop.popups.back(), &picker.mnuFiles);
        picker.mnuReplace.Click.raise();
        EXPECT_EQ(cards.connected.size(), connected + 1);
        EXPECT_EQ(cards.statements.size(), statements) << "it reads nothing anew";
    });
    EXPECT_TRUE(form.Timer1.enabled());
    EXPECT_EQ(cards.open_connections, 0);
}

TEST_F(Picker, ItOpensWithAllCardsAndAFolderShowsItsOwn) {
    counts = {{2, -5}, {3, 1234}};
    find_cards(3);
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_NE(statement().find("where f_idx=2 or f_idx=3)"), std::string::npos);
        EXPECT_EQ(utf8(picker.TreeView1.node(2).text()), "거래처(0)");
        EXPECT_EQ(utf8(picker.caption()), "발송대상 선택-1,234/3/0");
        picker.ListView2.user_select(1, true);
        picker.ListView2.user_selected_item(1);
        picker.ListView2.MouseUp.raise(MouseButton::left);
        EXPECT_EQ(utf8(picker.caption()), "발송대상 선택-1,234/3/2");
        picker.ListView2.user_selected_item(2);
        platform::KeyPressed letter{u'a'}, down{platform::KEY_DOWN};
        picker.ListView2.KeyUp.raise(letter);
        EXPECT_EQ(utf8(picker.caption()), "발송대상 선택-1,234/3/2");
        picker.ListView2.KeyUp.raise(down);
        EXPECT_EQ(utf8(picker.caption()), "발송대상 선택-1,234/3/3");

        find_cards(0);
        click(picker, 3);
        EXPECT_NE(statement().find("[a.f_idx]=3 AND"), std::string::npos);
        EXPECT_EQ(utf8(picker.caption()), "발송대상 선택-1,234/0/0");
        EXPECT_EQ(utf8(picker.TreeView1.tag()), "3");
        EXPECT_TRUE(picker.TreeView1.has_focus());
        picker.window_activated();
        EXPECT_NE(statement().find("[a.f_idx]=3 AND"), std::string::npos) << "only the first time lists all";
        click(picker, 1);
        EXPECT_NE(statement().find("where f_idx=2 or f_idx=3)"), std::string::npos);
    });
}

TEST_F(Picker, TheColumnsAndTheNumbersToChooseFollowTheKind) {
    found = {{u"홍길동", u"부장", u"한빛", u"010", u"02", u"03"}};
    const struct {
        const char16_t* kind;
        Rows columns, numbers, rows;
    } rows[] = {
        {TEXT, {"이름", "직위", "회사", "휴대폰"}, {"휴대폰"}, {"홍길동|부장|한빛|010"}},
        {u"문자플러스", {"이름", "직위", "회사", "휴대폰"}, {"휴대폰"}, {"홍길동|부장|한빛|010"}},
        {VOICE,
         {"이름", "회사", "휴대폰", "회사전화", "회사전화2"},
         {"휴대폰", "회사전화", "회사전화2"},
         {"홍길동|한빛|010|02|"}},
        {FAX, {"이름", "회사", "회사팩스", "회사팩스2"}, {"회사팩스", "회사팩스2"}, {"홍길동|한빛|03|"}},
        {u"", {}, {}, {"홍길동"}},
    };
    for (const auto& row : rows) {
        pick(row.kind, [&](frmSendMan& picker) {
            Rows columns, numbers;
            for (int i = 1; i <= picker.ListView2.column_count(); ++i)
                columns.push_back(utf8(picker.ListView2.column(i).caption));
            for (const Text& number : picker.Combo2.rows()) numbers.push_back(utf8(number));
            EXPECT_EQ(columns, row.columns);
            EXPECT_EQ(numbers, row.numbers);
            EXPECT_EQ(picker.Combo2.list_index(), numbers.empty() ? -1 : 0);
            EXPECT_EQ(list(picker), row.rows) << utf8(row.kind);
        });
    }
}

TEST_F(Picker, ColumnsShareTheWidthAndAClickSortsByOneFromThenOn) {
    found = {{.name = u"나"}, {.name = u"다"}, {.name = u"가"}};
    pick(TEXT, [&](frmSendMan& picker) {
        platform::ListView& cards = picker.ListView2;
        cards.user_resized(8003);
        EXPECT_EQ(cards.column(1).width, 1940);
        EXPECT_EQ(cards.column(4).width, 2000);
        cards.ColumnClick.raise(1);
        EXPECT_EQ(list(picker), (Rows{"다|||", "나|||", "가|||"}));
        EXPECT_EQ(cards.column(1).picture, 1);
        cards.ColumnClick.raise(1);
        EXPECT_EQ(list(picker), (Rows{"가|||", "나|||", "다|||"}));
        picker.Command5.Click.raise();
        EXPECT_EQ(list(picker), (Rows{"가|||", "나|||", "다|||"})) << "the arrow still says so";
        EXPECT_EQ(cards.column(1).picture, 0);
    });
}

TEST_F(Picker, FillingALongListStopsForTheUserAfter200Rows) {
    desktop.input_waits = [] { return true; };
    for (const auto& [found_cards, rows] : {std::pair{200, 200u}, {201, 201u}, {202, 201u}, {900, 201u}}) {
        find_cards(found_cards);
        pick(TEXT, [&, rows = rows](frmSendMan& picker) {
            EXPECT_EQ(picker.ListView2.row_count(), rows);
            EXPECT_FALSE(picker.PBar1.visible());
            EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
        });
    }
}

TEST_F(Picker, ProgressShowsForMoreThan100CardsAndTheWindowIsPaintedMeanwhile) {
    for (const auto& [found_cards, shows] : {std::pair{100, false}, {101, true}}) {
        find_cards(0);
        pick(TEXT, [&, found_cards = found_cards, shows = shows](frmSendMan& picker) {
            find_cards(found_cards);
            std::set<int> values;
            int painted = 0;
            desktop.during_paint = [&] {
                ++painted;
                if (picker.PBar1.visible()) values.insert(picker.PBar1.value());
            };
            click(picker, 2);
            desktop.during_paint = [] {};
            EXPECT_GE(painted, 5);
            EXPECT_EQ(values.size() >= 5, shows);
        });
    }
}

TEST_F(Picker, TheHintDisappearsWhenTypingButTheButtonSearchesForIt) {
    pick(TEXT, [&](frmSendMan& picker) {
        const auto shown = [&] { return utf8(picker.Text1.text()); };
        picker.ListView2.set_focus();
        EXPECT_EQ(shown(), "이름 또는 회사");
        EXPECT_EQ(picker.Text1.text_colour(), 0x808080u);
        picker.Command1.Click.raise();
        EXPECT_NE(statement().find("LIKE '이름 또는 회사%'"), std::string::npos);
        picker.Text1.set_focus();
        EXPECT_EQ(shown(), "");
        EXPECT_FALSE(picker.Text1.text_colour());
        picker.ListView2.set_focus();
        EXPECT_EQ(shown(), "이름 또는 회사");
        picker.Text1.set_focus();
        picker.Text1.user_edit(u"홍길", 2);
        picker.ListView2.set_focus();
        EXPECT_EQ(shown(), "홍길");
        EXPECT_FALSE(picker.Text1.text_colour());
    });
}

TEST_F(Picker, ASearchNeedsTwoCharactersAndFollowsItsMode) {
    find_cards(2);
    pick(TEXT, [&](frmSendMan& picker) {
        const auto before = cards.statements.size();
        search(picker, u"");
        desktop.expect_box(tests::refusal(u"두 글자 이상을 입력하셔야 합니다!"));
        search(picker, u"홍");
        EXPECT_EQ(cards.statements.size(), before);
        EXPECT_TRUE(picker.Text1.has_focus());

        picker.Combo4.set_list_index(1);
        search(picker, u"길동");
        EXPECT_NE(statement().find("tbl_namecard where f_idx=2 or f_idx=3)"), std::string::npos);
        EXPECT_NE(statement().find("LIKE '%길동%'"), std::string::npos);
        EXPECT_EQ(utf8(picker.caption()), "발송대상 선택-2/2/0");
        found.clear();
        search(picker, u"없음");
        EXPECT_EQ(utf8(picker.caption()), "발송대상 선택-2/0/0");
        EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
    });
}

TEST_F(Picker, AStatementThatTheDatabaseRefusesKeepsTheListAndShowsNoBox) {
    find_cards(2);
    pick(TEXT, [&](frmSendMan& picker) {
        const auto answer = cards.answer;
        cards.answer = [](const Text&) -> tests::ScriptedRows {
            throw RuntimeError(ErrorNumber::broken_statement);
        };
        search(picker, u"O'Brien");
        click(picker, 2);
        picker.Command5.Click.raise();
        EXPECT_EQ(picker.ListView2.row_count(), 2u);
        EXPECT_EQ(desktop.pointer, platform::Pointer::normal);
        cards.answer = answer;
    });
}

TEST_F(Picker, PickedRowsBecomeRecipientsWhenTheyHaveANumberThatIsNew) {
    found = {{u" 홍길동 ", u"부장1", u"한빛", u"010-1111-2222"},
             {u" ", u"", u" 한빛 ", u"010 3333 4444"},
             {u"", u"", u"", u"02-333"},
             {u"번호없음", u"", u"", u"없음"},
             {u"영", u"", u"", u"000"},
             {u"앞부분", u"", u"", u"0101111"},
             {u"안 고름", u"", u"", u"010-5555-6666"},
             {u"같은 번호", u"", u"", u"01033334444"}};
    // A NUL would end the carrier's list of recipients, and a text with the title in it.
    const Text nul(1, u'\0');
    found.push_back({u"끊" + nul + u"김", u"과" + nul + u"장", u"", u"01077778888"});
    form.recipients.ListView1.add_row(u"", {u"기존", u"0311", u"", u""}, true);
    pick(TEXT, [&](frmSendMan& picker) {
        for (std::size_t row = 0; row < found.size(); ++row) picker.ListView2.user_select(row, row != 6);
        picker.ListView2.user_selected_item(0);
        picker.Command2[1].Click.raise();
        EXPECT_TRUE(picker.loaded());
        EXPECT_TRUE(state.forms.gDialogConfirmed);
        EXPECT_FALSE(picker.PBar1.visible());
        EXPECT_EQ(recipients(), (Rows{"기존|0311|", "홍길동|01011112222|부장1", "한빛|01033334444|",
                                      "이름없음|02333|", "끊 김|01077778888|과 장"}));
        EXPECT_EQ(form.recipients.ListView1.checked_count(), 5u);
        EXPECT_EQ(form.recipients.ListView1.selected_item(), 4u);
        EXPECT_FALSE(form.recipients.ListView1.row(2).selected()) << "the newest alone is";

        state.forms.gDialogConfirmed = false;
        picker.Command2[0].Click.raise();
        EXPECT_FALSE(picker.loaded());
        EXPECT_FALSE(state.forms.gDialogConfirmed) << "all were there already";
        EXPECT_EQ(form.recipients.ListView1.row_count(), 5u);
    });
}

TEST_F(Picker, OnlyTheChosenNumberCountsAndARowWithoutItIsNotPicked) {
    found = {{u"홍길동", u"부장", u"한빛", u"010-1111-2222", u"02-123-4567", u"02-765-4321"}};
    const struct {
        const char16_t* kind;
        int number;
        Rows picked;
    } rows[] = {
        {VOICE, 1, {"홍길동|021234567|"}},
        {VOICE, 2, {}},
        {FAX, 0, {"홍길동|027654321|"}},
        {FAX, 1, {}},
    };
    for (const auto& row : rows) {
        form.recipients.ListView1.clear();
        pick(row.kind, [&](frmSendMan& picker) {
            picker.Combo2.set_list_index(row.number);
            picker.ListView2.select_item(0);
            picker.ListView2.DblClick.raise();
            EXPECT_TRUE(picker.loaded());
        });
        EXPECT_EQ(recipients(), row.picked);
    }
}

TEST_F(Picker, WithoutASelectedRowNothingIsPicked) {
    find_cards(2);
    pick(TEXT, [&](frmSendMan& picker) {
        picker.ListView2.DblClick.raise();
        for (platform::CommandButton& button : picker.Command2) {
            desktop.expect_box(tests::refusal(u"자료를 먼저 선택하세요!"));
            button.Click.raise();
        }
        EXPECT_TRUE(picker.loaded());
        platform::KeyPressed all{platform::KEY_CTRL_A};
        picker.ListView2.KeyPress.raise(all);
        EXPECT_TRUE(picker.ListView2.row(0).selected() && picker.ListView2.row(1).selected());
        picker.Command3.Click.raise();
        EXPECT_FALSE(picker.loaded());
    });
    EXPECT_EQ(form.recipients.ListView1.row_count(), 0u);
}

TEST_F(Picker, TheDatabaseCanBeAskedForTheFoldersOutsideTheTrash) {
    pick(TEXT, [&](frmSendMan& picker) {
        EXPECT_EQ(utf8(picker.ALLDB_SQL2()), "f_idx=2 or f_idx=3");
        EXPECT_EQ(statement(),
                  "SELECT f_idx FROM tbl_folder where f_idx <> 1000 and p_idx <> 1000 order by f_idx");
        cards.refusal = RuntimeError(ErrorNumber::file_not_found);
        desktop.expect_box(NOT_FOUND);
        EXPECT_TRUE(picker.ALLDB_SQL2().empty());
    });
}

}  // namespace
