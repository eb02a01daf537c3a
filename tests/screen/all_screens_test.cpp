#include "addressbook/frmSendMan.h"
#include "compose/frmSet1.h"
#include "compose/frmXTip.h"
#include "compose/main_form.h"
#include "gateway/frmAutoLogin.h"
#include "gateway/frmZentLogin.h"
#include "machine/qt/binders/screen_faults.h"
#include "machine/qt/typing/text_conversion.h"
#include "saved_texts/frmMyMsgBox.h"
#include "send/frmSBox.h"
#include "send/frmSendEndBox.h"
#include "send/frmZentSend.h"
#include "service/frmAbout.h"
#include "service/frmPondiraReg.h"
#include "service/frmWeb.h"
#include "tests/support/windows_on_doubles.h"
#include "update/frmUpdate.h"
#include "update/frmUpdateStart.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

using platform::Form;

/// The main window and all forms that it opens.
struct System : tests::WindowsOnDoubles {
    compose::frmZent main{platform, state, {}};

    std::vector<std::unique_ptr<Form>> dialogs() {
        std::vector<std::unique_ptr<Form>> forms;
        forms.push_back(std::make_unique<gateway::frmZentLogin>(platform, state, main.Timer1));
        forms.push_back(std::make_unique<gateway::frmAutoLogin>(platform, state));
        forms.push_back(std::make_unique<service::frmAbout>(platform));
        forms.push_back(std::make_unique<service::frmPondiraReg>(platform));
        forms.push_back(std::make_unique<service::frmWeb>(platform, state));
        forms.push_back(std::make_unique<compose::frmSet1>(platform));
        forms.push_back(std::make_unique<compose::frmXTip>(platform));
        forms.push_back(std::make_unique<send::frmSBox>(platform, state));
        forms.push_back(std::make_unique<send::frmZentSend>(platform, state, main));
        forms.push_back(std::make_unique<send::frmSendEndBox>(platform, main));
        forms.push_back(
            std::make_unique<addressbook::frmSendMan>(platform, state, main.recipients, main.Timer1));
        forms.push_back(std::make_unique<saved_texts::frmMyMsgBox>(platform, nullptr));
        forms.push_back(std::make_unique<update::frmUpdate>(platform, state));
        forms.push_back(std::make_unique<update::frmUpdateStart>(platform, state));
        return forms;
    }
};

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::processEvents();
}

QWidget& window_of(const Form& form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle() == machine::qt::to_qstring(form.caption()))
            return *window;
    }
    throw std::logic_error("no window of " + platform::to_utf8(form.name()));
}

QRect place_in(const QWidget& window, const QWidget& widget) {
    return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

std::string name_of(const QWidget& widget) { return widget.objectName().toStdString(); }

/// The width of a button's picture and text, with the edge that the style draws around them.
int width_needed(const QAbstractButton& button) {
    if (qobject_cast<const QCheckBox*>(&button) || qobject_cast<const QRadioButton*>(&button))
        return button.sizeHint().width();
    constexpr int EDGES = 8;
    const int picture = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
    return picture + button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + EDGES;
}

bool shows_its_text(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty()) return true;
        if (label->wordWrap()) return label->height() >= label->heightForWidth(label->width());
        return label->width() >= label->sizeHint().width() && label->height() >= label->sizeHint().height();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text().isEmpty() || button->width() >= width_needed(*button);
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        return tabs->width() >= tabs->minimumSizeHint().width();
    }
    return true;
}

void expect_everything_readable(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->isWindow() || widget->objectName().isEmpty()) continue;
        EXPECT_TRUE(shows_its_text(*widget)) << name_of(*widget) << " cuts its text";
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
            << name_of(*widget) << " is cut off by what holds it";
    }
}

/// The widgets that Tab visits, from the first one on.
std::vector<QWidget*> tab_order(QWidget& window) {
    std::vector<QWidget*> order;
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        if (next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) &&
            next->focusProxy() == nullptr && next->window() == &window)
            order.push_back(next);
    }
    return order;
}

/// Tab goes down, or up to the top of the next column. A widget missing from the screen's tab order comes
/// before all others, so that the one after it seems to jump upwards.
void expect_tab_order_of_a_reader(QWidget& window) {
    const auto order = tab_order(window);
    for (std::size_t i = 1; i < order.size(); ++i) {
        const QRect from = place_in(window, *order[i - 1]);
        const QRect to = place_in(window, *order[i]);
        EXPECT_TRUE(to.bottom() >= from.top() || to.left() > from.right())
            << "from " << name_of(*order[i - 1]) << " up to " << name_of(*order[i]);
    }
}

void expect_good_screen(QWidget& window) {
    settle();
    expect_everything_readable(window);
    expect_tab_order_of_a_reader(window);
}

/// A picture with a misspelt name would leave a blank.
void expect_pictures(const QWidget& window) {
    const auto expect_picture = [](const QObject& object, const QIcon& icon) {
        EXPECT_TRUE(icon.isNull() || !icon.pixmap(16).isNull()) << object.objectName().toStdString();
    };
    for (const auto* button : window.findChildren<QAbstractButton*>())
        expect_picture(*button, button->icon());
    for (const auto* action : window.findChildren<QAction*>()) expect_picture(*action, action->icon());
}

TEST(AllScreens, HaveAWidgetForEveryControlAndAControlForEveryWidget) {
    System system;
    auto forms = system.dialogs();
    std::vector<Form*> all{&system.main};
    for (const auto& form : forms) all.push_back(form.get());
    for (Form* form : all) {
        const auto window = system.screens.build(form->name());
        for (const QString& fault : machine::qt::screen_faults(*form, *window, system.machine.files))
            ADD_FAILURE() << platform::to_utf8(form->name()) << ": " << fault.toStdString();
        expect_pictures(*window);
    }
}

TEST(AllScreens, ShowEveryDialogWhole) {
    System system;
    system.main.load();
    for (const auto& form : system.dialogs()) {
        SCOPED_TRACE(platform::to_utf8(form->name()));
        form->load();
        form->show();
        expect_good_screen(window_of(*form));
        form->unload();
        settle();
    }
    system.main.unload();
    settle();
}

TEST(AllScreens, ShowTheMainWindowWholeAtItsSmallest) {
    System system;
    compose::frmZent& form = system.main;
    form.show();
    settle();
    QWidget& window = window_of(form);
    const QSize smallest = window.minimumSize();
    ASSERT_EQ(smallest, QSize(744, 493));
    form.Check1.set_checked(true);
    form.Option2.set_chosen(true);
    QWidget& panel = *window.findChild<QWidget*>(QStringLiteral("_messagePanel"));
    std::optional<QRect> panel_place;
    for (compose::MessageKind kind = compose::MessageKind::text; kind <= compose::MessageKind::fax; ++kind) {
        for (int source = 1; source <= 3; ++source) {
            SCOPED_TRACE(testing::Message() << "kind " << kind << ", source " << source);
            form.choose(kind);
            form.TabStrip2.select(source);
            window.resize(smallest);
            expect_good_screen(window);
            EXPECT_EQ(window.size(), smallest);
            const QRect place = place_in(window, panel);
            EXPECT_EQ(place, panel_place.value_or(place)) << "a change of kind moves the panel";
            panel_place = place;
        }
    }
    form.unload();
    settle();
}

TEST(AllScreens, HaveTheEmoticonsAsOneStopInWhichArrowsMove) {
    System system;
    system.main.show();
    system.main.choose(compose::MessageKind::text);
    settle();
    QWidget& window = window_of(system.main);
    const auto emoticon = [&](int index) {
        return window.findChild<QWidget*>(QStringLiteral("mBttn1_%1").arg(index));
    };
    emoticon(27)->setFocus();
    QTest::keyClick(window.focusWidget(), Qt::Key_Right);
    EXPECT_EQ(window.focusWidget(), emoticon(26));
    QTest::keyClick(window.focusWidget(), Qt::Key_Down);
    EXPECT_EQ(window.focusWidget(), emoticon(24));
    QTest::keyClick(window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(platform::to_utf8(system.main.mText1.text()), "(^0^) (~0~)[]");
    EXPECT_EQ(window.focusWidget()->objectName(), "mBttn1_24");
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget()->objectName(), "MySave");
    EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("STBar1_2"))->toolTip(), "가입자 정보변경");
    system.main.unload();
    settle();
}

TEST(AllScreens, HaveAPictureOfItsOwnForEveryKindOfDocument) {
    System system;
    compose::frmZent& form = system.main;
    form.show();
    settle();
    const auto& documents = *window_of(form).findChild<QTreeView*>(QStringLiteral("FAX1"))->model();
    std::vector<QImage> pictures;
    for (int number = 1; number <= 10; ++number) {
        const int row = static_cast<int>(form.FAX1.add_row(u"a", {}));
        form.FAX1.set_small_icon(static_cast<std::size_t>(row), number);
        settle();
        const auto icon = documents.index(row, 0).data(Qt::DecorationRole).value<QIcon>();
        const QImage picture = icon.pixmap(32).toImage();
        EXPECT_FALSE(picture.isNull()) << number;
        EXPECT_EQ(std::ranges::count(pictures, picture), 0) << number << " looks like another one";
        pictures.push_back(picture);
    }
    form.unload();
    settle();
}

}  // namespace
