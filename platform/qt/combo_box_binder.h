#pragma once

#include "platform/controls/combo_box.h"
#include "platform/qt/binder.h"
#include "platform/qt/user_edits.h"

class QComboBox;

namespace platform::qt {

class ComboBoxBinder : public WidgetBinder, private EditedField {
  public:
    ComboBoxBinder(BoundForm& bound, ComboBox& control, QComboBox& combo);

    void refresh(Aspect aspect) override;

  private:
    bool filter(QObject& object, QEvent& event) override;
    QString widget_text() const override;
    void hand_over() override;
    void write_back() override;
    bool is_live() const override { return is_bound_live(); }

    bool is_editable() const { return control_.style() == ComboBox::Style::editable; }
    void show_rows();
    void choose(int index);

    ComboBox& control_;
    QComboBox& combo_;
    UserEdits edits_{*this};
    bool working_ = false;
};

}  // namespace platform::qt
