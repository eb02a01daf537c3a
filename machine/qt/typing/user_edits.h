#pragma once

#include <QString>
#include <functional>

namespace machine::qt {

/// A text field's two sides, widget and model, as UserEdits uses them.
class EditedField {
  public:
    virtual ~EditedField() = default;

    /// The widget's committed text.
    virtual QString widget_text() const = 0;
    /// Passes the widget's text to the model as the user's edit; the handlers run before this returns.
    virtual void give_to_model() = 0;
    /// Gives the widget the model's text.
    virtual void write_back() = 0;
    /// False once the form has closed.
    virtual bool is_live() const = 0;
};

/// Keeps a text field's edits by the user and changes by the handlers in order.
///
/// While handlers open boxes, cut the text or move the focus, an input method may commit a syllable. Such an
/// edit waits until the handlers return. If they left the text unchanged, the edit follows as another one; if
/// they rewrote the text, the edit is lost.
class UserEdits {
  public:
    explicit UserEdits(EditedField& field) : field_(field) {}

    /// Passes the user's changes to the model, unless handlers are running.
    void settle();

    /// Runs handlers during which edits wait.
    void run(const std::function<void()>& handlers);

    /// To be called when the widget has been given the model's text.
    void written();

    /// Whether handlers are running.
    bool running() const { return running_; }

    /// Whether the widget has an edit that the model does not have yet.
    bool waiting() const { return field_.widget_text() != agreed_; }

  private:
    EditedField& field_;
    QString agreed_;
    bool running_ = false;
    bool rewritten_ = false;
};

}  // namespace machine::qt
