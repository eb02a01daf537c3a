#include "machine/qt/desktop/qt_clock.h"
#include "machine/qt/look/korean.h"
#include "platform/text/calendar.h"
#include "tests/screen/screen_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

namespace tests {
namespace {

using platform::MouseButton;

class ControlTest : public ScreenTest {
  protected:
    QAction& action(const char* name) { return *find("_centre").window()->findChild<QAction*>(name); }
};

TEST_F(ControlTest, ATabRaisesItsClickEachTimeAndOnce) {
    std::vector<int> clicks;
    form.TabStrip1.Click.connect([&] { clicks.push_back(form.TabStrip1.selected()); });
    auto& tabs = find<QTabBar>("TabStrip1");
    const auto click = [&](int index) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(index).center());
    };
    click(1);
    click(1);
    click(0);
    QTest::keyClick(&tabs, Qt::Key_Right);
    form.TabStrip1.select(1);
    EXPECT_EQ(clicks, (std::vector<int>{2, 2, 1, 2, 1}));
    EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(ControlTest, ChecksAndOptionsShowWhatTheirHandlersSet) {
    std::vector<std::string> events;
    form.Check1.Click.connect([&] { events.push_back(form.Check1.checked() ? "on" : "off"); });
    form.Option1.Click.connect([&] { events.push_back("1"), form.Option2.set_chosen(false); });
    form.Option2.Click.connect([&] { events.push_back("2"), form.Option1.set_chosen(false); });
    find<QCheckBox>("Check1").click();
    find<QRadioButton>("Option1").click();
    find<QRadioButton>("Option2").click();
    find<QRadioButton>("Option2").click();
    find("Option2").setFocus();
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right}) QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_TRUE(find("Option2").hasFocus());
    form.Check1.set_checked(false);
    form.mHLen1.Click.connect([&] { events.push_back("link"); });
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Space})
        QTest::keyClick(&find("mHLen1"), key);
    EXPECT_EQ(events, (std::vector<std::string>{"on", "1", "2", "1", "2", "off", "link", "link"}));
    EXPECT_TRUE(find<QRadioButton>("Option2").isChecked());
    EXPECT_FALSE(find<QRadioButton>("Option1").isChecked());
    EXPECT_FALSE(find<QCheckBox>("Check1").isChecked());

    events.clear();
    find<QCheckBox>("Check1").toggle();
    find<QRadioButton>("Option1").toggle();
    settle();
    EXPECT_EQ(events, (std::vector<std::string>{"on", "1"})) << "as a screen reader does it, without a click";
}

TEST_F(ControlTest, CombosShowTheirRowsAndRaiseAClickForEachChoice) {
    auto& list = find<QComboBox>("Combo3");
    for (const char16_t* row : {u"선택해주세요.", u"{이름}", u"{직위}"}) form.Combo3.add_row(row);
    EXPECT_EQ(list.currentIndex(), -1) << "the first row is not chosen by itself";
    form.Combo3.set_list_index(0);
    std::vector<int> clicks;
    form.Combo3.Click.connect([&] { clicks.push_back(form.Combo3.list_index()); });
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(clicks, (std::vector<int>{1, 2}));
    EXPECT_EQ(form.Combo3.text(), u"{직위}");

    auto& field = find<QComboBox>("txtUserName");
    form.txtUserName.add_row(u"Hong");
    form.txtUserName.set_focus();
    QTest::keyClicks(&field, "ho");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(form.txtUserName.text(), u"ho") << "nothing is completed or exchanged";
    EXPECT_EQ(form.txtUserName.list_index(), -1);
    EXPECT_EQ(field.count(), 1);
    form.txtUserName.set_text(u"김");
    EXPECT_EQ(field.currentText(), "김");
    form.txtUserName.clear();
    EXPECT_EQ(field.currentText(), "");
}

TEST_F(ControlTest, BarsAndMenusRaiseTheirClicksAndKeepWhatTheHandlersSet) {
    std::vector<std::string> events;
    form.Toolbar1.ButtonClick.connect([&](int number) {
        events.push_back("tool " + std::to_string(number));
        if (number == 2) form.Toolbar1.press(2);
    });
    form.STBar1.MouseDown.connect(
        [&](MouseButton button) { events.push_back(button == MouseButton::left ? "left" : "right"); });
    form.STBar1.PanelClick.connect([&](int number) { events.push_back("panel " + std::to_string(number)); });
    form.mnuAuto.Click.connect([&] {
        events.push_back("menu");
        form.mnuAuto.set_checked(true);
    });
    action("Toolbar1_2").trigger();
    action("Toolbar1_3").trigger();
    EXPECT_TRUE(action("Toolbar1_2").isChecked());
    EXPECT_FALSE(action("Toolbar1_3").isChecked()) << "only the handler presses";
    EXPECT_FALSE(action("Toolbar1_2").icon().isNull());

    form.STBar1.set_panel_text(1, u"로그인");
    form.STBar1.set_panel_picture(1, 2);
    auto& panel = find<QToolButton>("STBar1_1");
    EXPECT_EQ(panel.text(), "로그인");
    EXPECT_FALSE(panel.icon().isNull());
    QTest::mouseClick(&panel, Qt::LeftButton);
    QTest::mouseClick(&panel, Qt::RightButton);
    QTest::keyClick(&panel, Qt::Key_Space);
    action("mnuAuto").trigger();
    action("mnuAuto").trigger();
    EXPECT_TRUE(action("mnuAuto").isChecked());
    EXPECT_EQ(events, (std::vector<std::string>{"tool 2", "tool 3", "left", "panel 1", "right", "panel 1",
                                                "left", "panel 1", "menu", "menu"}));
    form.mnuSubPopup.hide();
    EXPECT_FALSE(find<QMenu>("mnuSubPopup").menuAction()->isVisible());
}

TEST_F(ControlTest, AnotherDayKeepsTheTimeOfDay) {
    form.DTP1.set_value(platform::make_time(2010, 3, 1, 13, 5, 7));
    auto& date = find<QDateEdit>("DTP1");
    EXPECT_EQ(date.date(), QDate(2010, 3, 1));
    EXPECT_EQ(date.text(), "2010-03-01 (월)");
    date.setDate(QDate(2010, 2, 28));
    EXPECT_EQ(form.DTP1.value(), platform::make_time(2010, 2, 28, 13, 5, 7));
    date.setFocus();
    date.setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(&date, "15");
    EXPECT_EQ(form.DTP1.value(), platform::make_time(2010, 2, 15, 13, 5, 7));
    date.setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClicks(&date, "20110301");
    EXPECT_EQ(form.DTP1.value(), platform::make_time(2011, 3, 1, 13, 5, 7)) << "whatever its weekday";
    form.DTP1.set_value(platform::make_time(1969, 12, 31, 23, 0, 0));
    EXPECT_EQ(date.date(), QDate(1969, 12, 31));

    QTest::keyClick(&date, Qt::Key_Down, Qt::AltModifier);
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_NE(calendar, nullptr) << "the key that opens every list opens the calendar";
    EXPECT_EQ(date.date(), QDate(1969, 12, 31));
    calendar->close();
}

TEST_F(ControlTest, TheWheelChangesOnlyTheChoiceThatHasTheFocus) {
    form.Combo3.add_row(u"00");
    form.Combo3.add_row(u"01");
    form.txtUserName.add_row(u"Hong");
    form.DTP1.set_value(platform::make_time(2010, 3, 1, 13, 5, 7));
    form.txtUserName.set_focus();
    const auto turn = [](QWidget& widget) {
        const QPointF place = widget.rect().center();
        QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    };
    for (const char* name : {"TabStrip1", "Combo3", "txtUserName", "DTP1"}) turn(find(name));
    EXPECT_EQ(form.TabStrip1.selected(), 1);
    EXPECT_EQ(form.Combo3.list_index(), -1);
    EXPECT_EQ(form.txtUserName.text(), u"");
    EXPECT_EQ(form.DTP1.value(), platform::make_time(2010, 3, 1, 13, 5, 7));

    find("DTP1").setFocus();
    turn(find("DTP1"));
    EXPECT_NE(form.DTP1.value(), platform::make_time(2010, 3, 1, 13, 5, 7));
}

TEST_F(ControlTest, ACaptionKeepsTheScreensShortcut) {
    auto& button = find<QPushButton>("Command2");
    button.setShortcut(QKeySequence("Ctrl+Q"));
    form.Command2.set_caption(u"끝내기");
    EXPECT_EQ(button.shortcut(), QKeySequence("Ctrl+Q"));
    form.Command2.set_caption(u"종료(&X)");
    EXPECT_EQ(button.shortcut(), QKeySequence("Alt+X"));
}

TEST(ClockTest, ATickIsNotRunInsideItselfAndMayEndItsTicker) {
    machine::qt::QtClock clock;
    int depth = 0, deepest = 0, ticks = 0;
    std::unique_ptr<platform::Ticker> ticker = clock.every(1, [&] {
        deepest = std::max(deepest, ++depth);
        clock.pause(10);
        --depth;
        if (++ticks == 2) ticker.reset();
    });
    for (int i = 0; i < 100 && ticker != nullptr; ++i) clock.pause(5);
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(ticks, 2);
    EXPECT_EQ(ticker, nullptr);
}

TEST(KoreanTranslatorTest, TheMenusOfTextFieldsAreKorean) {
    machine::qt::KoreanTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QLineEdit field;
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    for (const QAction* action : menu->actions()) {
        if (action->isSeparator()) continue;
        EXPECT_GE(action->text().front().unicode(), u'가') << action->text().toStdString();
    }
    QCoreApplication::removeTranslator(&translator);
}

}  // namespace
}  // namespace tests
