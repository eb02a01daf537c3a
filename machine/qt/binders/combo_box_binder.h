#pragma once

#include "machine/qt/binders/binder.h"
#include "machine/qt/typing/user_edits.h"
#include "platform/controls/fields.h"

class QComboBox;

namespace machine::qt {

class ComboBoxBinder : public BinderOf<platform::ComboBox, QComboBox>, private EditedField {
  public:
    ComboBoxBinder(BoundForm& bound, platform::ComboBox& control, QComboBox& combo);

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
    QString widget_text() const override;
    void give_to_model() override;
    void write_back() override;
    bool is_live() const override { return is_bound_live(); }

    bool is_editable() const { return control().style() == platform::ComboBox::Style::editable; }
    void show_rows();
    void choose(int index);

    UserEdits edits_{*this};
    bool working_ = false;
};

}  // namespace machine::qt
