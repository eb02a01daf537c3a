#include "machine/qt/widgets/column_widths.h"
#include "tests/screen/screen_fixture.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

namespace tests {
namespace {

using platform::KeyPressed;
using platform::MouseButton;
using platform::Text;

class ListTest : public ScreenTest {
  protected:
    void SetUp() override {
        ScreenTest::SetUp();
        for (const char16_t* name : {u"가", u"나", u"다", u"라"}) list.add_row(u"", {name, u"010"}, true);
        settle();
        list.set_focus();
    }

    QTreeView& view() { return find<QTreeView>("ListView1"); }
    QPoint place(int row, int column = 1) {
        return view().visualRect(view().model()->index(row, column)).center();
    }
    void click(int row, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, keys, place(row));
    }
    std::vector<std::size_t> selected_in_model() {
        std::vector<std::size_t> rows;
        for (std::size_t row = 0; row < list.row_count(); ++row) {
            if (list.row(row).selected()) rows.push_back(row);
        }
        return rows;
    }
    std::vector<std::size_t> selected_in_view() {
        std::vector<std::size_t> rows;
        for (const QModelIndex& index : view().selectionModel()->selectedRows()) rows.push_back(index.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    platform::ListView& list = form.ListView1;
};

using Rows = std::vector<std::size_t>;

TEST_F(ListTest, TheSelectedRowsAndTheSelectedItemFollowTheUser) {
    struct Step {
        const char* name;
        std::function<void()> act;
        Rows rows;
        std::optional<std::size_t> item;
    };
    for (const Step& step : std::vector<Step>{
             {"click", [this] { click(1); }, {1}, 1},
             {"shift and click", [this] { click(3, Qt::ShiftModifier); }, {1, 2, 3}, 3},
             {"control and click takes one out", [this] { click(3, Qt::ControlModifier); }, {1, 2}, 1},
             {"control and click adds one", [this] { click(0, Qt::ControlModifier); }, {0, 1, 2}, 0},
             {"a key", [this] { QTest::keyClick(&view(), Qt::Key_Down); }, {1}, 1},
             {"the last one goes", [this] { click(1, Qt::ControlModifier); }, {}, std::nullopt},
         }) {
        SCOPED_TRACE(step.name);
        step.act();
        EXPECT_EQ(selected_in_model(), step.rows);
        EXPECT_EQ(list.selected_item(), step.item);
    }
}

TEST_F(ListTest, ASelectionByCodeShowsWhenTheHandlerHasReturned) {
    struct Step {
        const char* name;
        std::function<void()> act;
        Rows rows;
        int current;
    };
    for (const Step& step : std::vector<Step>{
             {"select", [this] { list.select_item(2); }, {2}, 2},
             {"select another", [this] { list.deselect_item(), list.select_item(1); }, {1}, 1},
             {"select all", [this] { list.select_all(); }, {0, 1, 2, 3}, 1},
             {"take one out", [this] { list.deselect_item(); }, {0, 2, 3}, 1},
             {"remove them", [this] { list.remove_selected_rows(); }, {}, 0},
             {"clear", [this] { list.clear(); }, {}, -1},
             {"start anew", [this] { list.add_row(u"", {u"마"}); }, {}, 0},
         }) {
        SCOPED_TRACE(step.name);
        step.act();
        settle();
        EXPECT_EQ(selected_in_view(), step.rows);
        EXPECT_EQ(selected_in_model(), step.rows);
        EXPECT_EQ(view().currentIndex().row(), step.current);
    }
}

TEST_F(ListTest, SortingKeepsTheSelectionOnItsRows) {
    list.select_item(1);
    list.sort(1, platform::ListView::SortOrder::descending);
    settle();
    EXPECT_EQ(selected_in_view(), Rows{2});
    EXPECT_EQ(view().currentIndex().row(), 2);
    EXPECT_EQ(view().model()->index(0, 1).data().toString(), "라");
    EXPECT_EQ(view().header()->sectionSize(0), 60) << "columns keep their widths";
}

TEST_F(ListTest, OnlyTheUserRaisesChecksWithMouseOrSpace) {
    std::vector<std::pair<std::size_t, bool>> checks;
    list.ItemCheck.connect([&](std::size_t row) { checks.emplace_back(row, list.row(row).checked()); });
    list.set_checked(3, false);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {},
                      view().visualRect(view().model()->index(1, 0)).topLeft() + QPoint(10, 10));
    click(2);
    QTest::keyClick(&view(), Qt::Key_Space);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_EQ(checks, (std::vector<std::pair<std::size_t, bool>>{{1, false}, {2, false}, {2, true}}));
    EXPECT_EQ(view().model()->index(3, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(list.checked_count(), 2u);
}

TEST_F(ListTest, TheHeadersBoxChecksAllRowsAndSpaceTheSelectedOnes) {
    using platform::ListView;
    std::vector<std::string> events;
    list.CheckMany.connect([&](ListView::ManyRows rows, bool checked) {
        events.push_back(std::string(rows == ListView::ManyRows::all ? "all " : "selected ") +
                         (checked ? "on" : "off"));
    });
    list.ColumnClick.connect([&](int column) { events.push_back("column " + std::to_string(column)); });
    auto& header = *view().header();
    const auto click_header = [&](int x) {
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(x, header.height() / 2));
    };
    click_header(12);
    list.set_checked(2, false);
    settle();
    click_header(12);
    click_header(header.sectionSize(0) - 8);
    click(1);
    click(2, Qt::ShiftModifier);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_EQ(events, (std::vector<std::string>{"all off", "all on", "column 1", "selected on"}));
    EXPECT_EQ(list.checked_count(), 3u) << "whether the rows are checked is up to the handlers";
}

TEST_F(ListTest, ColumnsShareTheRoomButStayWideEnoughToRead) {
    auto& header = *view().header();
    machine::qt::ColumnWidths widths(header);
    widths.set({"60", "*100", "*50/40"});
    const auto sizes = [&] {
        return std::vector{header.sectionSize(0), header.sectionSize(1), header.sectionSize(2)};
    };
    const std::vector<int> first = sizes();
    widths.fill(header.length() + 60);
    EXPECT_EQ(sizes(), (std::vector{first[0], first[1] + 40, first[2] + 20}));
    widths.fill(100);
    EXPECT_EQ(sizes(), (std::vector{first[0], first[1], first[2] * 4 / 5}))
        << "narrower they could not be read";
}

TEST_F(ListTest, LinesAndFilesAreDroppedOnAListThatHasAUseForThem) {
    QMimeData lines, urls;
    lines.setText("가\n나");
    urls.setUrls({QUrl::fromLocalFile("/tmp/list.csv")});
    const auto drop = [&](const QMimeData& data) {
        QDragEnterEvent enter(place(1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view().viewport(), &enter);
        QDropEvent event(place(1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted()) QCoreApplication::sendEvent(view().viewport(), &event);
    };
    std::vector<std::string> dropped;
    drop(lines);
    list.Drop.connect([&](const platform::Dropped& what) {
        dropped.push_back(platform::to_utf8(what.text));
        for (const Text& file : what.files) dropped.push_back(platform::to_utf8(file));
    });
    drop(lines);
    drop(urls);
    EXPECT_EQ(dropped,
              (std::vector<std::string>{"가\r\n나", "", platform::to_utf8(files.path_of("/tmp/list.csv"))}));
}

TEST_F(ListTest, ASignMakesNoRowHigher) {
    const int height = view().sizeHintForIndex(view().model()->index(0, 2)).height();
    list.set_marking(
        {.mark_of = [](const platform::ListItem&) { return platform::RowMark::failed; }, .reason_of = {}});
    settle();
    EXPECT_EQ(view().sizeHintForIndex(view().model()->index(0, 2)).height(), height);
}

TEST_F(ListTest, AnEmptyListTellsWhatToDo) {
    list.clear();
    settle();
    const QImage blank = view().grab().toImage();
    list.set_placeholder(u"이름과 번호를 입력하십시오.");
    settle();
    EXPECT_NE(view().grab().toImage(), blank);
    EXPECT_EQ(view().accessibleDescription(), QStringLiteral("이름과 번호를 입력하십시오."));
    list.add_row(u"", {u"가"});
    EXPECT_NE(view().grab().toImage(), blank);
    EXPECT_EQ(view().accessibleDescription(), QString());
    list.clear();
    EXPECT_EQ(view().accessibleDescription(), QStringLiteral("이름과 번호를 입력하십시오."));
}

TEST_F(ListTest, KeysColumnsAndButtonsReachTheHandlers) {
    std::vector<std::string> events;
    list.KeyDown.connect([&](KeyPressed& key) { events.push_back("down " + std::to_string(key.code)); });
    list.KeyPress.connect([&](KeyPressed& key) {
        events.push_back("press " + std::to_string(key.code));
        if (key.code == platform::KEY_CTRL_A) list.select_all();
    });
    list.ColumnClick.connect([&](int column) { events.push_back("column " + std::to_string(column)); });
    list.MouseUp.connect([&](MouseButton button) {
        if (button == MouseButton::right) events.push_back("right");
    });
    list.DblClick.connect([&] { events.push_back("double"); });

    QTest::keyClick(&view(), Qt::Key_Delete);
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    settle();
    EXPECT_EQ(selected_in_view(), (Rows{0, 1, 2, 3}));
    QTest::keyClick(&view(), Qt::Key_K);
    QTest::keyClick(&view(), Qt::Key_Escape);
    EXPECT_EQ(form.escapes, 1);
    auto& header = *view().header();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      QPoint(header.sectionViewportPosition(2) + 20, header.height() / 2));
    QTest::mouseClick(view().viewport(), Qt::RightButton, {}, place(1));
    EXPECT_EQ(selected_in_model().size(), 4u) << "the menu is for all selected rows";
    QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&view(), &menu_key);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place(1));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place(1, 0));
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, place(1, 0));
    EXPECT_EQ(events, (std::vector<std::string>{"down 46", "press 1", "press 107", "column 3", "right",
                                                "right", "double"}));
}

TEST_F(ListTest, AMenuAskedForByAKeyOpensAtTheCurrentRow) {
    list.MouseUp.connect([this](MouseButton button) {
        if (button == MouseButton::right) desktop.popup_menu(form, form.mnuSubPopup);
    });
    int deleted = 0;
    form.mnuDelete.Click.connect([&] { ++deleted; });
    click(0);
    QPoint opened;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        opened = menu->pos();
        QTest::keyClick(menu, Qt::Key_D);
    });
    QTest::keyClick(&view(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(deleted, 1);
    const QRect row = view().visualRect(view().currentIndex());
    EXPECT_EQ(opened, view().viewport()->mapToGlobal(row.bottomLeft()));
}

TEST_F(ListTest, AScreenReaderAlwaysFindsANameAndACurrentRow) {
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view());
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->text(QAccessible::Name), "받는사람");
    EXPECT_TRUE(view().currentIndex().isValid());
    EXPECT_NE(accessible->focusChild(), nullptr);
    list.sort(1, platform::ListView::SortOrder::descending);
    EXPECT_TRUE(view().currentIndex().isValid());
    list.clear();
    list.add_row(u"", {u"마"});
    EXPECT_TRUE(view().currentIndex().isValid());
}

TEST_F(ListTest, RowsAddedOneByOneScrollTheListOnce) {
    for (int i = 0; i < 20000; ++i) {
        list.deselect_item();
        const std::size_t row = list.add_row(u"", {u"이름", u"01012345678"}, true);
        list.make_visible(row);
        list.select_item(row);
    }
    EXPECT_EQ(view().verticalScrollBar()->value(), 0) << "nothing is laid out while the handler runs";
    settle();
    EXPECT_TRUE(view().viewport()->rect().intersects(view().visualRect(view().model()->index(20003, 0))));
    EXPECT_EQ(selected_in_view(), Rows{20003});
}

TEST_F(ListTest, RowsThatTakeTheirPlacesInASortedListComeIntoViewThere) {
    list.sort(1, platform::ListView::SortOrder::ascending);
    list.set_checked(3, false);
    for (int i = 0; i < 2000; ++i) {
        list.deselect_item();
        const std::size_t row = list.add_row(u"", {i % 2 == 0 ? u"마" : u"나", u"010"}, true);
        list.make_visible(row);
        list.select_item(row);
    }
    // A row that nobody asks to see comes before the one to show.
    list.add_row(u"", {u"가"});
    EXPECT_EQ(view().verticalScrollBar()->value(), 0) << "nothing is laid out while the handler runs";
    settle();
    constexpr std::size_t LAST_ADDED = 1002;
    EXPECT_EQ(selected_in_view(), Rows{LAST_ADDED});
    EXPECT_EQ(selected_in_model(), Rows{LAST_ADDED});
    EXPECT_TRUE(view().viewport()->rect().intersects(
        view().visualRect(view().model()->index(static_cast<int>(LAST_ADDED), 0))));
    EXPECT_EQ(view().model()->rowCount(), 2005);
    EXPECT_EQ(view().indexBelow(view().currentIndex()).siblingAtColumn(1).data().toString(), "다");
}

}  // namespace
}  // namespace tests
