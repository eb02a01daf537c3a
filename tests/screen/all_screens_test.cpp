#include "addressbook/frmSendMan.h"
#include "app/guide.h"
#include "compose/frmSet1.h"
#include "compose/frmXTip.h"
#include "compose/main_form.h"
#include "compose/recipients/frmPasted.h"
#include "gateway/frmAutoLogin.h"
#include "gateway/frmZentLogin.h"
#include "machine/qt/binders/screen_faults.h"
#include "machine/qt/desktop/qt_desktop.h"
#include "machine/qt/typing/conversion.h"
#include "saved_texts/frmMyMsgBox.h"
#include "send/confirmation.h"
#include "send/frmZentSend.h"
#include "send/report.h"
#include "service/frmAbout.h"
#include "service/frmPondiraReg.h"
#include "service/frmWeb.h"
#include "tests/screen/screen_checks.h"
#include "tests/support/windows_on_doubles.h"
#include "update/frmUpdate.h"
#include "update/frmUpdateStart.h"

#include <QApplication>
#include <QFile>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

using platform::Form;
using tests::expect_good_screen;
using tests::expect_no_captions;
using tests::expect_pictures;
using tests::place_in;
using tests::settle;

/// The main window and all forms that it opens.
struct System : tests::WindowsOnDoubles {
    compose::frmZent main{platform, state, {}};
    drafts::DraftKeeper keeper{platform, main};

    std::vector<std::unique_ptr<Form>> dialogs() {
        std::vector<std::unique_ptr<Form>> forms;
        forms.push_back(std::make_unique<gateway::frmZentLogin>(platform, state, main.Timer1));
        forms.push_back(std::make_unique<gateway::frmAutoLogin>(platform, state));
        forms.push_back(std::make_unique<service::frmAbout>(platform));
        forms.push_back(std::make_unique<service::frmPondiraReg>(platform));
        forms.push_back(std::make_unique<service::frmWeb>(platform, state));
        forms.push_back(std::make_unique<compose::frmSet1>(platform));
        forms.push_back(std::make_unique<compose::frmXTip>(platform));
        forms.push_back(std::make_unique<compose::frmPasted>(platform, main.recipients, platform::Text()));
        forms.push_back(std::make_unique<send::frmSBox>(platform, state));
        forms.push_back(std::make_unique<send::frmZentSend>(platform, state, main, keeper));
        forms.push_back(std::make_unique<send::frmSendEndBox>(platform, main));
        forms.push_back(
            std::make_unique<addressbook::frmSendMan>(platform, state, main.recipients, main.Timer1));
        forms.push_back(std::make_unique<saved_texts::frmMyMsgBox>(platform, nullptr));
        forms.push_back(std::make_unique<update::frmUpdate>(platform, state));
        forms.push_back(std::make_unique<update::frmUpdateStart>(platform, state));
        return forms;
    }
};

QWidget& window_of(const Form& form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle() == machine::qt::to_qstring(form.caption()))
            return *window;
    }
    throw std::logic_error("no window of " + platform::to_utf8(form.name()));
}

TEST(AllScreens, HaveAWidgetForEveryControlAndAControlForEveryWidget) {
    System system;
    auto forms = system.dialogs();
    std::vector<Form*> all{&system.main};
    for (const auto& form : forms) all.push_back(form.get());
    for (Form* form : all) {
        const auto window = system.screens.build(form->name());
        expect_no_captions(*window);
        for (const QString& fault : machine::qt::screen_faults(*form, *window, system.machine.files))
            ADD_FAILURE() << platform::to_utf8(form->name()) << ": " << fault.toStdString();
        expect_pictures(*window);
    }
}

TEST(AllScreens, HaveAPageInTheGuide) {
    System system;
    std::vector<platform::TextView> pages;
    for (const auto& form : system.dialogs()) {
        pages.push_back(app::guide_page(form->name()));
        EXPECT_FALSE(pages.back().empty()) << platform::to_utf8(form->name());
    }
    for (const compose::KindOfMessage& kind : compose::kinds_of_message()) pages.push_back(kind.guide_page);
    if (!QFile::exists(ZENT_GUIDE)) return;
    for (const platform::TextView page : pages)
        EXPECT_TRUE(QFile::exists(ZENT_GUIDE "/" + machine::qt::to_qstring(page) + ".md"));
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
    form.text.Check1.set_checked(true);
    form.schedule.Option2.set_chosen(true);
    QWidget& panel = *window.findChild<QWidget*>(QStringLiteral("_messagePanel"));
    std::optional<QRect> panel_place;
    for (const compose::KindOfMessage& kind : compose::kinds_of_message()) {
        for (int source = 1; source <= 3; ++source) {
            SCOPED_TRACE(testing::Message()
                         << "kind " << platform::to_utf8(kind.caption) << ", source " << source);
            form.choose(kind.kind);
            form.voice.TabStrip2.select(source);
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

TEST(AllScreens, LayTheProgressOverTheHeadOfTheRecipients) {
    System system;
    compose::frmZent& form = system.main;
    form.show();
    settle();
    QWidget& window = window_of(form);
    const auto place_of = [&](const char* name) {
        return place_in(window, *window.findChild<QWidget*>(QLatin1StringView(name)));
    };
    const QRect list = place_of("ListView1");
    form.recipients.PBar1.show();
    settle();
    EXPECT_EQ(place_of("ListView1"), list);
    EXPECT_EQ(place_of("PBar1"), QRect(list.topLeft(), QSize(list.width(), 23)));
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
    QTest::keyClick(window.focusWidget(), Qt::Key_Left);
    QTest::keyClick(window.focusWidget(), Qt::Key_Down);
    EXPECT_EQ(window.focusWidget(), emoticon(21));
    QTest::keyClick(window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(platform::to_utf8(system.main.text.mText1.text()), "[]<@_@>");
    EXPECT_EQ(window.focusWidget()->objectName(), "mText1") << "where the user goes on writing";
    emoticon(21)->setFocus();
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget()->objectName(), "MySave");
    EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("STBar1_2"))->toolTip(), "가입자 정보변경");
    system.main.unload();
    settle();
}

TEST(AllScreens, HaveKeysForEveryPaneAndEveryKind) {
    System system;
    system.main.show();
    settle();
    system.main.choose(compose::MessageKind::text);
    QWidget& window = window_of(system.main);
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.focusWidget(), key, modifiers);
        return window.focusWidget()->objectName().toStdString();
    };
    for (const char* pane : {"HText1_0", "ListView1", "Option1", "Command1", "mText1"})
        EXPECT_EQ(press(Qt::Key_F6), pane);
    EXPECT_EQ(press(Qt::Key_F6, Qt::ShiftModifier), "Command1");
    EXPECT_EQ(press(Qt::Key_3, Qt::ControlModifier), "ttsText");
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), "FAXBttn1");
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), "mText1");
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier), "FAXBttn1");
    EXPECT_EQ(press(Qt::Key_N, Qt::AltModifier), "HText1_0");
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
        const int row = static_cast<int>(form.fax.FAX1.add_row(u"a", {}));
        form.fax.FAX1.set_small_icon(static_cast<std::size_t>(row), number);
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
