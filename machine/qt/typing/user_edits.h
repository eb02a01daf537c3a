#pragma once

#include <QString>
#include <functional>

namespace machine::qt {

/// What the order of edits needs of a text field's two sides.
class EditedField {
  public:
    virtual ~EditedField() = default;

    /// The widget's committed text.
    virtual QString widget_text() const = 0;
    /// Hands the widget's text to the model as the user's edit; the handlers run before this returns.
    virtual void hand_over() = 0;
    /// Gives the widget the model's text.
    virtual void write_back() = 0;
    /// Whether the form is still there.
    virtual bool is_live() const = 0;
};

/// The order between what the user edits in a widget and what the handlers make of it.
///
/// Handlers open boxes, cut the text and send the focus around, and an input method may commit a syllable
/// meanwhile. Such an edit waits until the handlers have returned. If they left the text as it was handed
/// over, it is one edit more; if they rewrote it, the model wins.
class UserEdits {
  public:
    explicit UserEdits(EditedField& field) : field_(field) {}

    /// Hands over what the user has changed, unless handlers are running.
    void settle();

    /// Runs handlers during which edits wait.
    void run(const std::function<void()>& handlers);

    /// The widget has just been given the model's text.
    void written();

    /// Whether handlers are running.
    bool running() const { return running_; }

    /// Whether the widget has an edit that has not been handed over.
    bool waiting() const { return field_.widget_text() != agreed_; }

  private:
    EditedField& field_;
    QString agreed_;
    bool running_ = false;
    bool rewritten_ = false;
};

}  // namespace machine::qt
