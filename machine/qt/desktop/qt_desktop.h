#pragma once

#include "machine/qt/desktop/file_dialog.h"
#include "machine/qt/desktop/help_key.h"
#include "machine/qt/desktop/kept_layout.h"
#include "machine/qt/desktop/screens.h"
#include "machine/qt/typing/last_key.h"
#include "platform/ports/desktop.h"
#include "platform/ports/files.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <map>

namespace machine::qt {

class FormWindow;

/// The desktop with Qt: each form has a window, made when the form is loaded.
class QtDesktop : public platform::Desktop {
  public:
    /// Screens and files have to outlive the desktop. What the user makes of the windows' insides is kept in
    /// the layout file, if it has a name.
    QtDesktop(const Screens& screens, platform::Files& files, const QString& layout_file = {});
    ~QtDesktop() override;

    /// Runs the program until the form is closed.
    void run_until_closed(const platform::Form& form);
    /// Closes everything as a user would who closes one window after the other: boxes get their cautious
    /// answers, a job is stopped and ends, and the form that the program runs for goes last. Returns at once.
    void close_all();

    void prepare(platform::Form& form) override;
    void show(platform::Form& form) override;
    void show_modal(platform::Form& form) override;
    void close(platform::Form& form) override;
    void popup_menu(platform::Form& form, platform::Menu& menu) override;
    void popup_menu_below(platform::Form& form, platform::Menu& menu,
                          const platform::Control& control) override;
    platform::BoxAnswer message_box(const platform::MessageBox& box) override;
    std::optional<platform::Text> ask_for_file(const platform::FileQuestion& question) override;
    platform::Text input_box(const platform::InputBox& box) override;
    void set_pointer(platform::Pointer pointer) override;
    void set_clipboard(const platform::Text& text) override;
    platform::Text clipboard_text() const override;
    platform::Screen screen() const override;
    void set_application_title(const platform::Text& title) override;
    void notify(const platform::Text& text) override;
    void yield() override;
    void paint() override;
    std::unique_ptr<platform::InputWatch> watch_input() override;
    bool closes_all() const override { return closing_.isActive(); }

  private:
    FormWindow* window_of(const platform::Form& form) const;
    QWidget* front_window() const;
    const platform::Form* active_form() const;
    void wait_for_close(const platform::Form& form) const;
    void close_front_window() const;

    const Screens& screens_;
    platform::Files& files_;
    FileDialog file_dialog_;
    KeptLayout layout_;
    LastKey last_key_;
    HelpKey help_key_;
    std::map<const platform::Form*, QPointer<FormWindow>> windows_;
    QString title_;
    bool hourglass_ = false;
    QElapsedTimer painted_;
    QTimer closing_;
};

}  // namespace machine::qt
