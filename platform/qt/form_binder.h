#pragma once

#include "platform/controls/control_visitor.h"
#include "platform/qt/binder.h"

#include <QMultiHash>
#include <QString>
#include <vector>

namespace platform::qt {

/// Joins every control of a form with the widget of its name in the window.
class FormBinder : private ControlVisitor {
  public:
    /// The binders become children of the window's.
    FormBinder(BoundForm& bound, QObject& owner);

    /// Parts with the form, which may be destroyed afterwards.
    void release();

    /// Controls without a widget and widgets of a wrong kind: faults of the screen that a test looks for.
    const std::vector<QString>& faults() const { return faults_; }

  private:
    void visit(Animation& control) override;
    void visit(CheckBox& control) override;
    void visit(ComboBox& control) override;
    void visit(CommandButton& control) override;
    void visit(DatePicker& control) override;
    void visit(Frame& control) override;
    void visit(Image& control) override;
    void visit(Label& control) override;
    void visit(ListView& control) override;
    void visit(Menu& control) override;
    void visit(OptionButton& control) override;
    void visit(PictureBox& control) override;
    void visit(ProgressBar& control) override;
    void visit(SoundRecorder& control) override;
    void visit(StatusBar& control) override;
    void visit(TabStrip& control) override;
    void visit(TextBox& control) override;
    void visit(ToolBar& control) override;
    void visit(TreeView& control) override;
    void visit(WebBrowser& control) override;

    template <class Kind>
    Kind* find(const QString& name) const;
    template <class BinderType, class Widget, class ControlType>
    bool try_bind(ControlType& control);
    template <class BinderType, class Widget, class ControlType>
    void bind(ControlType& control);
    void add_fault(const Control& control);

    BoundForm& bound_;
    QObject& owner_;
    /// What the window holds, by name; while the controls are joined only.
    QMultiHash<QString, QObject*> named_;
    std::vector<Binder*> binders_;
    std::vector<QString> faults_;
};

}  // namespace platform::qt
