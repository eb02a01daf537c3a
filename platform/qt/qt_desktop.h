#pragma once

#include "platform/ports/desktop.h"
#include "platform/ports/files.h"
#include "platform/qt/file_dialog.h"
#include "platform/qt/screens.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QString>
#include <map>

namespace platform::qt {

class FormWindow;

/// The desktop by Qt: a window for each form, made when the form is loaded.
class QtDesktop : public Desktop {
  public:
    /// Both have to outlive the desktop.
    QtDesktop(const Screens& screens, Files& files);
    ~QtDesktop() override;

    /// Runs the program until the form is closed.
    void run_until_closed(const Form& form);

    void prepare(Form& form) override;
    void show(Form& form) override;
    void show_modal(Form& form) override;
    void close(Form& form) override;
    void popup_menu(Form& form, Menu& menu) override;
    void popup_menu_below(Form& form, Menu& menu, const Control& control) override;
    BoxAnswer message_box(const MessageBox& box) override;
    std::optional<Text> ask_for_file(const FileQuestion& question) override;
    Text input_box(const InputBox& box) override;
    void set_pointer(Pointer pointer) override;
    void set_clipboard(const Text& text) override;
    Screen screen() const override;
    void set_application_title(const Text& title) override;
    void yield() override;
    void paint() override;
    std::unique_ptr<InputWatch> watch_input() override;

  private:
    FormWindow* window_of(const Form& form) const;
    QWidget* front_window() const;
    void wait_for_close(const Form& form) const;

    const Screens& screens_;
    Files& files_;
    FileDialog file_dialog_;
    std::map<const Form*, QPointer<FormWindow>> windows_;
    QString title_;
    bool hourglass_ = false;
    QElapsedTimer painted_;
};

}  // namespace platform::qt
