#include "machine/qt/binders/date_picker_binder.h"

#include "machine/qt/widgets/day_calendar.h"

#include <QDateEdit>
#include <QEvent>

namespace machine::qt {

using platform::Aspect;

namespace {

const QDate FIRST_DAY(1970, 1, 1);

}  // namespace

DatePickerBinder::DatePickerBinder(BoundForm& bound, platform::DatePicker& control, QDateEdit& edit)
    : BinderOf(bound, control, edit) {
    edit.setCalendarPopup(true);
    edit.setLocale(QLocale::Korean);
    edit.setDisplayFormat(QStringLiteral("yyyy-MM-dd (ddd)"));
    // Turning the wheel must not bring the focus here.
    edit.setFocusPolicy(Qt::StrongFocus);
    show(Aspect::value);
    connect(&edit, &QDateEdit::userDateChanged, this, [this] { take_day(); });
}

void DatePickerBinder::show(Aspect aspect) {
    if (aspect != Aspect::value) return;
    const auto day = std::chrono::floor<std::chrono::days>(control().value());
    widget().setDate(FIRST_DAY.addDays(day.time_since_epoch().count()));
}

/// A wheel that is turned over the field without the focus is meant to scroll. The calendar is made when the
/// user comes near: at the start nobody sees it.
bool DatePickerBinder::filter(QObject&, QEvent& event) {
    if (!has_calendar_ && (event.type() == QEvent::Enter || event.type() == QEvent::FocusIn)) {
        has_calendar_ = true;
        auto* calendar = new DayCalendar;
        calendar->setLocale(widget().locale());
        widget().setCalendarWidget(calendar);
    }
    if (event.type() != QEvent::Wheel || widget().hasFocus()) return false;
    event.ignore();
    return true;
}

/// The time of day stays when the user chooses another day.
void DatePickerBinder::take_day() {
    if (!is_bound_live()) return;
    const auto shown = std::chrono::floor<std::chrono::days>(control().value());
    const std::chrono::local_days chosen{std::chrono::days(FIRST_DAY.daysTo(widget().date()))};
    if (chosen == shown) return;
    control().user_choose(control().value() + (chosen - shown));
    show(Aspect::value);
}

}  // namespace machine::qt
