#include "tests/screen/screen_fixture.h"
#include "tests/support/picking.h"

#include <QAccessible>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCursor>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

namespace tests {
namespace {

using addressbook::frmSendMan;
using platform::Text;

/// The picker in its real window, over the test's own card database.
struct PickerWindow : DeskTest {
    Picking picking;
    machine::qt::Screens screens = machine::qt::program_screens();
    machine::qt::QtDesktop desktop{screens, picking.files};
    platform::Platform platform = picking.on(desktop);
    frmSendMan picker{platform, picking.state, picking.form.recipients, picking.form.Timer1};

    PickerWindow() {
        picking.folders = {{2, 1, u"거래처"}, {3, 2, u"서울"}, {4, 1, u"친구"}};
        picking.found.assign(5, {.name = u"홍길동", .cellphone = u"010-1111-2222"});
    }

    /// Opens the window, lets the user do this in it, and closes it.
    void show(const std::function<void()>& act, const Text& kind = u"문자메시지") {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            // Timers run while the folders are counted, too.
            if (picker.ListView2.row_count() == 0 || picker.PBar1.visible()) return;
            look.stop();
            settle();
            act();
            picker.unload();
        });
        look.start(0);
        picker.ShowEnter(kind);
        settle();
    }

    QTreeView& tree() { return find<QTreeView>("TreeView1"); }
    QTreeView& list() { return find<QTreeView>("ListView2"); }
    QModelIndex node(std::size_t position) {
        const platform::TreeNode& wanted = picker.TreeView1.node(position);
        if (wanted.parent() == nullptr) return tree().model()->index(static_cast<int>(wanted.row()), 0);
        return tree().model()->index(static_cast<int>(wanted.row()), 0, node(wanted.parent()->position()));
    }
    void click_node(std::size_t position, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(tree().viewport(), button, {}, tree().visualRect(node(position)).center());
    }
    QPoint row(int number) { return list().visualRect(list().model()->index(number, 1)).center(); }
    QWidget& window() { return *tree().window(); }
};

TEST_F(PickerWindow, EveryWayToChooseAFolderRaisesOneClick) {
    show([this] {
        std::vector<std::string> chosen;
        picker.TreeView1.NodeClick.connect(
            [&](platform::TreeNode& node) { chosen.push_back(utf8(node.tag())); });
        auto& search = find<QLineEdit>("Text1");
        EXPECT_TRUE(search.hasFocus());
        const auto colour = [&] { return search.palette().color(QPalette::Text).name().toStdString(); };
        EXPECT_EQ(colour(), QApplication::palette().color(QPalette::Text).name().toStdString())
            << "what is typed is no hint";
        tree().setFocus();
        EXPECT_EQ(colour(), "#808080");
        // As assistive programs write.
        search.setText("Kim");
        settle();
        EXPECT_NE(colour(), "#808080");
        search.clear();
        settle();
        EXPECT_TRUE(chosen.empty()) << "the window opens with all cards, without a click";
        click_node(2);
        click_node(2);
        QTest::keyClick(&tree(), Qt::Key_Right);
        QTest::keyClick(&tree(), Qt::Key_Down);
        EXPECT_TRUE(picker.TreeView1.node(2).expanded());
        QTest::keyClick(&tree(), Qt::Key_Home);
        EXPECT_EQ(chosen, (std::vector<std::string>{"2", "2", "3", "1"}));
        EXPECT_EQ(tree().currentIndex(), node(1));

        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {},
                          tree().visualRect(node(2)).topLeft() + QPoint(-8, 10));
        EXPECT_FALSE(picker.TreeView1.node(2).expanded());
        EXPECT_EQ(chosen.size(), 4u) << "a folder that is folded up is not chosen";
    });
}

TEST_F(PickerWindow, TheTreeFollowsTheChangesOfItsNodes) {
    show([this] {
        EXPECT_EQ(node(2).data().toString(), "거래처(1)");
        EXPECT_TRUE(tree().isExpanded(node(1)));
        EXPECT_FALSE(qvariant_cast<QIcon>(node(1).data(Qt::DecorationRole)).isNull());
        picker.TreeView1.set_text(picker.TreeView1.node(2), u"새 이름");
        EXPECT_EQ(node(2).data().toString(), "새 이름");
        picker.TreeView1.set_expanded(picker.TreeView1.node(2), true);
        click_node(3);
        picker.TreeView1.remove_node(picker.TreeView1.node(4));
        EXPECT_EQ(tree().model()->rowCount(node(1)), 1);
        EXPECT_TRUE(tree().isExpanded(node(2)));
        EXPECT_EQ(tree().currentIndex(), node(3));
        picker.FOLDER_TREE_LOAD();
        EXPECT_TRUE(tree().currentIndex().isValid()) << "a screen reader brings the program down otherwise";
        EXPECT_NE(QAccessible::queryAccessibleInterface(&tree())->focusChild(), nullptr);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&tree())->text(QAccessible::Name), "폴더");
    });
}

TEST_F(PickerWindow, ARightClickAndTheMenuKeyOpenTheTreesMenu) {
    show([this] {
        const auto connected = picking.cards.connected.size();
        const auto pick_from_menu = [] {
            QTimer::singleShot(0, [] {
                auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                ASSERT_NE(menu, nullptr);
                EXPECT_EQ(menu->actions().front()->text(), "새로고침(&R)");
                QTest::keyClick(menu, Qt::Key_R);
            });
        };
        pick_from_menu();
        click_node(2, Qt::RightButton);
        EXPECT_EQ(tree().currentIndex(), node(1)) << "the list is of another folder";
        pick_from_menu();
        QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(&tree(), &key);
        EXPECT_EQ(picking.cards.connected.size(), connected + 2);
    });
}

TEST_F(PickerWindow, EnterSearchesInTheSearchLineAndConfirmsElsewhere) {
    show([this] {
        auto& text = find<QLineEdit>("Text1");
        QTest::keyClick(&text, Qt::Key_Down);
        EXPECT_TRUE(list().hasFocus());
        EXPECT_EQ(window().windowTitle(), "발송대상 선택-3/5/1");
        EXPECT_EQ(text.text(), "이름 또는 회사");
        EXPECT_EQ(text.palette().color(QPalette::Text), QColor(0x80, 0x80, 0x80));
        text.setFocus();
        EXPECT_EQ(text.palette().color(QPalette::Text),
                  find<QComboBox>("Combo4").palette().color(QPalette::Text));
        compose(QStringLiteral("한빛"), QString());
        QTest::keyClick(&text, Qt::Key_Return);
        EXPECT_NE(picking.statement().find("LIKE '한빛%'"), std::string::npos);
        EXPECT_TRUE(picker.loaded());

        list().setFocus();
        QTest::keyClick(&list(), Qt::Key_A, Qt::ControlModifier);
        settle();
        EXPECT_EQ(list().selectionModel()->selectedRows().size(), 5);
        QTest::keyClick(&list(), Qt::Key_Return);
        EXPECT_FALSE(picker.loaded());
        EXPECT_EQ(picking.recipients(), std::vector<std::string>{"홍길동|01011112222|"});
    });
}

TEST_F(PickerWindow, AShortcutPressesItsButtonAtOnceAndSwallowsNoEscape) {
    show([this] {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row(0));
        QTest::keyClick(&list(), Qt::Key_A, Qt::AltModifier);
        EXPECT_EQ(picking.recipients(), std::vector<std::string>{"홍길동|01011112222|"});
        QTest::keyClick(window().focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(picker.loaded());
    });
}

TEST_F(PickerWindow, ADoubleClickAddsAndEscapeCloses) {
    show([this] {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row(1));
        EXPECT_EQ(window().windowTitle(), "발송대상 선택-3/5/2");
        QTest::keyClick(&list(), Qt::Key_End);
        EXPECT_EQ(window().windowTitle(), "발송대상 선택-3/5/5");
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row(2));
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, row(2));
        EXPECT_TRUE(picker.loaded());
        EXPECT_EQ(picking.form.recipients.ListView1.row_count(), 1u);
        QTest::keyClick(&list(), Qt::Key_Escape);
        EXPECT_FALSE(picker.loaded());
    });
}

TEST_F(PickerWindow, ColumnsShareTheWidthAlsoWhenTheWindowChanges) {
    const auto columns = [this] {
        std::vector<int> widths;
        for (int i = 0; i < list().header()->count(); ++i) widths.push_back(list().header()->sectionSize(i));
        return widths;
    };
    show(
        [&] {
            for (const int width : {820, 1200, 700}) {
                window().resize(width, 540);
                settle();
                const int room = list().viewport()->width();
                const auto widths = columns();
                ASSERT_EQ(widths.size(), 5u);
                EXPECT_NEAR(widths[0], room / 5 - 4, 1);
                EXPECT_NEAR(widths[1], room / 5, 1);
                EXPECT_EQ(list().header()->length(), room) << "nothing to scroll sideways";
            }
        },
        u"음성메시지");
}

TEST_F(PickerWindow, IsPaintedWhileALongListFills) {
    show([this] {
        struct Painted : QObject {
            explicit Painted(QWidget& bar) : bar(bar) { bar.installEventFilter(this); }
            bool eventFilter(QObject*, QEvent* event) override {
                if (event->type() == QEvent::Paint) ++times;
                return false;
            }
            QWidget& bar;
            int times = 0;
        } painted(find<QProgressBar>("PBar1"));
        picking.found.assign(20'000, {.name = u"홍길동"});
        click_node(2);
        EXPECT_GE(painted.times, 1);
        EXPECT_EQ(picker.ListView2.row_count(), 20'000u);
        settle();
        EXPECT_EQ(list().model()->rowCount(), 20'000);
    });
}

TEST_F(PickerWindow, MovingTheMouseOverItStopsTheFillingOfALongList) {
    show([this] {
        struct Mover : QObject {
            explicit Mover(QWidget& bar) : bar(bar) { bar.installEventFilter(this); }
            bool eventFilter(QObject*, QEvent* event) override {
                if (event->type() == QEvent::Paint) QCursor::setPos(bar.mapToGlobal(QPoint(++times, 0)));
                return false;
            }
            QWidget& bar;
            int times = 0;
        } mover(find<QProgressBar>("PBar1"));
        picking.found.assign(200'000, {.name = u"홍길동"});
        click_node(2);
        EXPECT_GT(picker.ListView2.row_count(), 200u);
        EXPECT_LT(picker.ListView2.row_count(), 200'000u);
        EXPECT_FALSE(find<QProgressBar>("PBar1").isVisible());
    });
}

}  // namespace
}  // namespace tests
