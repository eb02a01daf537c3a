#pragma once

#include "machine/qt/binders/binder.h"
#include "machine/qt/typing/user_edits.h"
#include "platform/controls/fields.h"

class QLineEdit;

namespace machine::qt {

class MultilineEdit;

/// Joins a text box with its field: text, caret and keys in both directions.
class TextBoxBinder : public BinderOf<platform::TextBox, QWidget>, protected EditedField {
  public:
    TextBoxBinder(BoundForm& bound, platform::TextBox& control, QWidget& widget);

  protected:
    struct Selection {
        int start = 0;
        int end = 0;
        int caret = 0;
    };
    virtual void write(const QString& text) = 0;
    virtual void select(int start, int end) = 0;
    virtual Selection selection() const = 0;

    void press_key(platform::KeyPressed& key);
    /// To be called after an edit or a move of the caret in the widget.
    void edited();

    /// Whether the widget has an edit that the model does not have yet.
    bool has_edit() const { return edits_.waiting(); }

    void give_to_model() final;
    void write_back() final;
    bool is_live() const final { return is_bound_live(); }

  private:
    void show(platform::Aspect aspect) final;
    void select_as_model();
    void show_colour();

    UserEdits edits_{*this};
    bool writing_ = false;
};

/// A text box of several lines.
class MultilineBinder : public BinderOf<platform::TextBox, MultilineEdit, TextBoxBinder> {
  public:
    MultilineBinder(BoundForm& bound, platform::TextBox& control, MultilineEdit& edit);

  private:
    QString widget_text() const override;
    void write(const QString& text) override;
    void select(int start, int end) override;
    Selection selection() const override;
};

/// A text box of one line.
class LineBinder : public BinderOf<platform::TextBox, QLineEdit, TextBoxBinder> {
  public:
    LineBinder(BoundForm& bound, platform::TextBox& control, QLineEdit& edit);

  private:
    bool filter(QObject& object, QEvent& event) override;
    QString widget_text() const override;
    void write(const QString& text) override;
    void select(int start, int end) override;
    Selection selection() const override;
    bool divert_lines(QEvent& event);
    void insert(const QString& text);
    /// Whether the text is lines that the control wants; it gets them soon.
    bool take_lines(const QString& text);
    void join_lines();

    bool working_ = false;
};

}  // namespace machine::qt
