#include "platform/controls/list_view.h"

#include "platform/controls/form.h"
#include "tests/support/lists.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/utf8.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace platform;
using tests::utf8;
using Names = std::vector<std::string>;
using Order = ListView::SortOrder;

struct Lists : testing::Test {
    tests::VirtualClock clock;
    tests::ScriptedDesktop desktop{clock};
    struct Window : Form {
        using Form::Form;
    } window{desktop, u"window"};
    ListView list{window, u"list", {{u"선택", {}}, {u"이름", {}}, {u"번호", {}}}, true};

    Names column(int sub_item) const { return tests::column(list, sub_item); }

    /// The answer that the index must give, found by walking over every row.
    std::optional<std::size_t> walk(TextView beginning) const {
        if (beginning.empty()) return std::nullopt;
        for (std::size_t row = 0; row < list.row_count(); ++row) {
            for (int column = 1; column <= list.row(row).sub_item_count(); ++column) {
                if (list.row(row).sub_item(column).starts_with(beginning)) return row;
            }
        }
        return std::nullopt;
    }
};

TEST_F(Lists, ARemovedRowTakesItsMarkAlongAndTheSelectedItemMovesUp) {
    for (const char16_t* name : {u"가", u"나", u"다"}) list.add_row(u"", {name}, true);
    list.user_select(0, true);
    list.user_selected_item(2);
    list.remove_selected_rows();
    EXPECT_EQ(column(1), (Names{"나", "다"}));
    EXPECT_EQ(list.checked_count(), 2u);
    EXPECT_EQ(list.selected_item(), 1u);

    list.user_selected_item(std::nullopt);
    list.select_all();
    EXPECT_EQ(list.selected_item(), 0u) << "keys need a row to act on";
    list.remove_selected_rows();
    list.select_all();
    EXPECT_EQ(list.selected_item(), std::nullopt);
}

TEST_F(Lists, SortingKeepsTheOrderOfEqualRowsBothWaysAndIgnoresCase) {
    const struct {
        const char16_t *name, *number;
    } rows[] = {{u"b", u"1"}, {u"가", u"2"}, {u"A", u"3"}, {u"B", u"4"}, {u"a", u"5"}, {u"", u"6"}};
    for (const auto& row : rows) list.add_row(u"", {row.name, row.number});
    list.select_item(3);

    list.sort(1, Order::ascending);
    EXPECT_EQ(column(2), (Names{"6", "3", "5", "1", "4", "2"}));
    EXPECT_EQ(list.selected_item(), 4u) << "the selected item goes with its row";
    list.sort(1, Order::descending);
    EXPECT_EQ(column(2), (Names{"2", "1", "4", "3", "5", "6"}));
    list.sort(7, Order::ascending);
    EXPECT_EQ(column(2), (Names{"2", "1", "4", "3", "5", "6"})) << "no such column: all are equal";

    list.clear();
    for (int i = 0; i < 300; ++i) list.add_row(u"", {decimal(i % 3), decimal(1000 + i)});
    list.sort(1, Order::descending);
    const Names numbers = column(2);
    for (auto group = numbers.begin(); group != numbers.end(); group += 100)
        EXPECT_TRUE(std::is_sorted(group, group + 100)) << "a long list is sorted in another way";
}

TEST_F(Lists, ASortedListPutsNewRowsWhereSortingThemAllWould) {
    constexpr int ROWS = 4000;
    for (const Order order : {Order::ascending, Order::descending}) {
        ListView sorted_at_the_end({{u"이름"}, {u"번호"}});
        list.clear();
        for (int i = 0; i < ROWS; ++i) {
            if (i == ROWS / 4) list.sort(1, order);
            const Text name = decimal(i * 7919 % 997) + (i % 2 == 0 ? u"a" : u"A");
            const std::size_t row = list.add_row(u"", {name, decimal(i)});
            ASSERT_EQ(utf8(list.row(row).sub_item(2)), std::to_string(i));
            ASSERT_EQ(list.row(row).position(), row);
            sorted_at_the_end.add_row(u"", {name, decimal(i)});
            // What a job writes into a row neither moves it nor misleads those after it.
            if (i >= ROWS / 4) list.set_sub_item(row, 1, u"등록성공");
        }
        sorted_at_the_end.sort(1, order);
        EXPECT_EQ(column(2), tests::column(sorted_at_the_end, 2));
    }
    list.set_columns({{u"이름"}});
    list.add_row(u"", {u""});
    EXPECT_EQ(list.row(ROWS).position(), ROWS) << "other columns, no order yet";
}

TEST_F(Lists, FindingComparesTheBeginningsOfSubItemsAndNotTheItemText) {
    list.add_row(u"0309", {u"홍길동", u"01012345678"});
    list.add_row(u"", {u"이사", u"0212345678"});
    EXPECT_EQ(utf8(list.row(1).sub_item(4)), "") << "behind the last one";
    list.set_sub_item(1, 4, u"부장");
    const struct {
        const char16_t* beginning;
        std::optional<std::size_t> row;
    } rows[] = {{u"0", 0u},    {u"02", 1u}, {u"01012345678", 0u}, {u"010123456789", {}},
                {u"부장", 1u}, {u"장", {}}, {u"0309", {}},        {u"", {}}};
    for (const auto& row : rows)
        EXPECT_EQ(list.find_in_sub_items(row.beginning), row.row) << utf8(row.beginning);
}

TEST_F(Lists, FindingAgreesWithAWalkOverAllRowsAfterAnyChanges) {
    std::mt19937 random(20261123);
    const auto below = [&](std::size_t end) { return static_cast<std::size_t>(random() % end); };
    // Few different beginnings, so that there are duplicates, and texts longer than the index's keys.
    const auto text = [&] {
        static const Text ALPHABET[] = {u"0", u"1", u"01012345678", u"02", u"가", u"각", u"이름없음", u"a"};
        Text made;
        for (std::size_t parts = below(5); parts > 0; --parts) made += ALPHABET[below(std::size(ALPHABET))];
        return made;
    };

    // The walk has to leave the index's first chunk.
    for (int row = 0; row < 600; ++row) list.add_row(text(), {text(), text(), u"", text()}, true);
    for (int step = 0; step < 1500; ++step) {
        const std::size_t rows = list.row_count();
        const std::size_t act = below(100);
        if (act < 45 || rows == 0) {
            list.add_row(text(), {text(), text(), u"", text()}, true);
        } else if (act < 70) {
            list.set_sub_item(below(rows), static_cast<int>(1 + below(5)), text());
        } else if (act < 80) {
            for (std::size_t n = below(4); n > 0; --n) list.user_select(below(rows), true);
            TakenRows taken = list.take_rows(&ListItem::selected);
            if (below(2) == 0) list.put_back(std::move(taken));
        } else if (act < 82) {
            list.sort(static_cast<int>(below(5)), below(2) == 0 ? Order::ascending : Order::descending);
        } else if (act == 82 && below(200) == 0) {
            list.clear();
        }
        const Text beginning = text();
        ASSERT_EQ(list.find_in_sub_items(beginning), walk(beginning))
            << "step " << step << ": " << utf8(beginning);
    }
}

}  // namespace
