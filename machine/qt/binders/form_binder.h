#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/control_visitor.h"

#include <QMultiHash>
#include <QString>
#include <vector>

namespace machine::qt {

/// Joins every control of a form with the widget of its name in the window.
class FormBinder : private platform::ControlVisitor {
  public:
    /// The binders become children of the window's.
    FormBinder(BoundForm& bound, QObject& owner);

    /// Parts with the form and its controls, which may be destroyed afterwards.
    void release();

    /// Controls without a widget or with one of a wrong kind, for a test of the screen.
    const std::vector<QString>& faults() const { return faults_; }

  private:
    void visit(platform::Animation& control) override;
    void visit(platform::CheckBox& control) override;
    void visit(platform::ComboBox& control) override;
    void visit(platform::CommandButton& control) override;
    void visit(platform::DatePicker& control) override;
    void visit(platform::Frame& control) override;
    void visit(platform::Image& control) override;
    void visit(platform::Label& control) override;
    void visit(platform::ListView& control) override;
    void visit(platform::Menu& control) override;
    void visit(platform::OptionButton& control) override;
    void visit(platform::PictureBox& control) override;
    void visit(platform::ProgressBar& control) override;
    void visit(platform::SoundRecorder& control) override;
    void visit(platform::StatusBar& control) override;
    void visit(platform::TabStrip& control) override;
    void visit(platform::TextBox& control) override;
    void visit(platform::ToolBar& control) override;
    void visit(platform::TreeView& control) override;
    void visit(platform::WebBrowser& control) override;

    template <class Kind>
    Kind* find(const QString& name) const;
    template <class BinderType, class ControlType>
    bool try_bind(ControlType& control);
    template <class BinderType, class ControlType>
    void bind(ControlType& control);
    void add(Binder* binder);
    void add_fault(const platform::Control& control);

    BoundForm& bound_;
    QObject& owner_;
    /// What the window holds, by name; empty once the controls are joined.
    QMultiHash<QString, QObject*> named_;
    std::vector<Binder*> binders_;
    std::vector<QString> faults_;
};

}  // namespace machine::qt
