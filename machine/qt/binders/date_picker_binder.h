#pragma once

#include "machine/qt/binders/binder.h"
#include "platform/controls/fields.h"

class QDateEdit;

namespace machine::qt {

class DatePickerBinder : public BinderOf<platform::DatePicker, QDateEdit> {
  public:
    DatePickerBinder(BoundForm& bound, platform::DatePicker& control, QDateEdit& edit);

  private:
    void show(platform::Aspect aspect) override;
    bool filter(QObject& object, QEvent& event) override;
    void take_day();

    bool has_calendar_ = false;
};

}  // namespace machine::qt
