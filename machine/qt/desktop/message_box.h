#pragma once

#include "machine/qt/typing/last_key.h"
#include "platform/ports/desktop.h"

#include <QMessageBox>

namespace machine::qt {

class TypingRest;

/// A message box that the user answers, never the keys of somebody who types without looking: it takes none
/// until nothing has been typed for half a second, and none before it has been painted.
class MessageBox : public QMessageBox {
    Q_OBJECT

  public:
    /// A box without a title has the application's.
    MessageBox(const platform::MessageBox& box, const QString& application_title, const LastKey& last_key,
               QWidget* parent);

    /// Shows the box and waits for the answer.
    platform::BoxAnswer ask();

    /// Whether a character that the user wrote has led to the box. Unless he agrees, no more of the text is
    /// wanted.
    bool is_about_the_text() const { return about_the_text_; }

    /// What the user typed before the box took keys; a line end stands for Enter, a tab for Tab.
    QString typed_ahead() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void add_buttons(const platform::MessageBox& box);
    void make_room_for_title();

    platform::BoxButtons buttons_;
    const LastKey& last_key_;
    bool about_the_text_;
    TypingRest& typing_rest_;
};

/// Shows the box in front of the parent and waits for the answer. What was typed meanwhile goes to the
/// parent's field that has the focus once the handlers are done.
platform::BoxAnswer ask(const platform::MessageBox& box, const QString& application_title,
                        const LastKey& last_key, QWidget* parent);

}  // namespace machine::qt
