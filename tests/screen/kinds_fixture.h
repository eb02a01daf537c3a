#pragma once

#include "compose/main_form.h"
#include "tests/screen/program_fixture.h"
#include "tests/support/files_on_disk.h"
#include "tests/support/utf8.h"

#include <QDateEdit>
#include <QTabBar>
#include <QTest>
#include <string>

namespace tests {

/// Drafts of every kind in the real windows.
class KindsTest : public ProgramTest {
  protected:
    using ProgramTest::ProgramTest;

    compose::frmZent& form() { return application.main_form(); }

    /// Clicks the tab of that number, counted from 1.
    static void choose_tab(QWidget& window, const char* name, int number) {
        auto& tabs = *window.findChild<QTabBar*>(QString::fromLatin1(name));
        QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(number - 1).center());
    }

    static void add_recipient(QWidget& window, const QString& number) {
        type_into(window, "HText1_0", QStringLiteral("김"));
        type_into(window, "HText1_1", number);
        press_enter(window, "HText1_1");
    }

    /// Presses the button and picks the file in the dialog that opens.
    void pick(const char* button, const std::filesystem::path& file) {
        user.in_window("frmZent", [button](QWidget& window) { press(window, button); });
        choose_file(file);
    }

    void close_box() {
        user.in_window("messageBox", [this](QWidget& window) {
            told = window.property("text").toString();
            QTest::keyClick(&window, Qt::Key_Return);
        });
    }

    /// As the program names the file, and as it reaches the carrier.
    static std::string program_path(const std::filesystem::path& file) {
        return utf8(machine::posix::Paths::from_posix(file));
    }
    static std::string carrier_path(const std::filesystem::path& file) {
        return utf8(platform::lower_case(machine::posix::Paths::from_posix(file)));
    }

    /// What the last message box said.
    QString told;
};

}  // namespace tests
