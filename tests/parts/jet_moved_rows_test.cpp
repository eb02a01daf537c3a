#include "tests/parts/jet_pages.h"

#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

using tests::JetPages;
using Slot = JetPages::Slot;

constexpr Slot CARD{32, 0}, NEXT_CARD{32, 1}, LATER_CARD{JetPages::ROOM, 0};
/// Its memo fills several pages.
constexpr Slot CARD_WITH_LONG_MEMO{44, 8};
constexpr int UNUSABLE = -2147467259;

using Card = std::pair<int, platform::Text>;

std::vector<Card> recorded_cards() {
    const tests::CardTable table("edge.tbl_namecard");
    std::vector<Card> cards;
    for (const auto& row : table.rows)
        cards.emplace_back(table.number(row, u"i_idx"), table.at(row, u"FullName").value_or(u""));
    return cards;
}

std::vector<Card> cards_in(platform::CardConnection& connection) {
    const auto found = connection.open_recordset(u"select i_idx,FullName from tbl_namecard");
    std::vector<Card> cards;
    for (; !found->end_of_file(); found->move_next()) {
        const auto name = found->field(u"FullName").value;
        const auto* text = std::get_if<platform::Text>(&name);
        cards.emplace_back(std::get<std::int32_t>(found->field(u"i_idx").value), text ? *text : u"");
    }
    return cards;
}

TEST(JetMovedRows, AMovedCardIsReadAtItsNewPlaceAndKeepsItsTurn) {
    static const std::string more(200, 'x');
    enum class Becomes { same, longer, gone };
    const struct {
        const char* what;
        std::function<void(JetPages& pages)> change;
        Becomes first;
    } rows[] = {
        {"grown and moved", [](auto& pages) { pages.move(CARD, JetPages::ROOM, more); }, Becomes::longer},
        {"moved back", [](auto& pages) { pages.move(LATER_CARD, JetPages::EARLIER_ROOM); }, Becomes::same},
        {"moved with a long memo", [](auto& pages) { pages.move(CARD_WITH_LONG_MEMO, JetPages::ROOM); },
         Becomes::same},
        {"moved, then deleted",
         [](auto& pages) {
             pages.move(CARD, JetPages::ROOM);
             pages.remove(CARD);
         },
         Becomes::gone},
        {"moved twice, the first new place left behind",
         [](auto& pages) {
             const Slot first = pages.copy(CARD, JetPages::ROOM);
             pages.point(CARD, pages.copy(first, JetPages::EARLIER_ROOM, more));
         },
         Becomes::longer},
        {"moved twice, the first new place pointing on",
         [](auto& pages) {
             const Slot first = pages.move(CARD, JetPages::ROOM);
             pages.point(first, pages.copy(first, JetPages::EARLIER_ROOM, more), JetPages::DELETED);
         },
         Becomes::longer},
    };
    tests::CardsOnDisk disk;
    for (const auto& row : rows) {
        JetPages pages;
        row.change(pages);
        disk.put_bytes(pages.bytes);
        auto expected = recorded_cards();
        if (row.first == Becomes::longer) expected.front().second += platform::from_utf8(more);
        if (row.first == Becomes::gone) expected.erase(expected.begin());
        const int error = disk.error();
        EXPECT_TRUE(error == 0 && cards_in(*disk.connect()) == expected) << row.what << ", error " << error;
    }
}

TEST(JetMovedRows, AFileIsDamagedWhereAMovedCardsPointerLeadsToNoPlaceOfItsOwn) {
    const struct {
        const char* what;
        std::function<void(JetPages& pages)> change;
    } rows[] = {
        {"a page of another table", [](auto& pages) { pages.move(CARD, JetPages::FOLDERS); }},
        {"a page of the cards' index", [](auto& pages) { pages.move(CARD, JetPages::INDEX); }},
        {"a page behind the end",
         [](auto& pages) {
             pages.point(CARD, {JetPages::END, 0});
         }},
        {"a slot behind the last one",
         [](auto& pages) {
             pages.move(CARD, JetPages::ROOM);
             pages.leave_out_last(JetPages::ROOM);
         }},
        {"a living row", [](auto& pages) { pages.point(CARD, NEXT_CARD); }},
        {"two slots that point at one place",
         [](auto& pages) { pages.point(NEXT_CARD, pages.move(CARD, JetPages::ROOM)); }},
        {"places that point at each other",
         [](auto& pages) {
             const Slot first = pages.move(CARD, JetPages::ROOM);
             const Slot second = pages.copy(NEXT_CARD, JetPages::ROOM);
             pages.point(first, second, JetPages::DELETED);
             pages.point(second, first, JetPages::DELETED);
         }},
        {"a new place without its mark",
         [](auto& pages) { pages.mark(pages.move(CARD, JetPages::ROOM), JetPages::LIVING); }},
    };
    tests::CardsOnDisk disk;
    for (const auto& row : rows) {
        JetPages pages;
        row.change(pages);
        disk.put_bytes(pages.bytes);
        EXPECT_EQ(disk.error(), UNUSABLE) << row.what;
    }
}

}  // namespace
