#pragma once

#include "machine/qt/binders/binder.h"
#include "machine/qt/typing/user_edits.h"
#include "platform/controls/fields.h"

class QComboBox;

namespace machine::qt {

class ComboBoxBinder : public WidgetBinder, private EditedField {
  public:
    ComboBoxBinder(BoundForm& bound, platform::ComboBox& control, QComboBox& combo);

    void refresh(platform::Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    QString widget_text() const override;
    void hand_over() override;
    void write_back() override;
    bool is_live() const override { return is_bound_live(); }

    bool is_editable() const { return control_.style() == platform::ComboBox::Style::editable; }
    void show_rows();
    void choose(int index);

    platform::ComboBox& control_;
    QComboBox& combo_;
    UserEdits edits_{*this};
    bool working_ = false;
};

}  // namespace machine::qt
