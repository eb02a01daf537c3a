#include "machine/qt/binders/date_picker_binder.h"

#include "machine/qt/widgets/day_calendar.h"

#include <QCoreApplication>
#include <QDateEdit>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace machine::qt {

using platform::Aspect;

namespace {

const QDate FIRST_DAY(1970, 1, 1);

/// Lists are opened by these keys; Qt's date field would take one of them for a step of the year.
bool opens_calendar(const QKeyEvent& key) {
    return (key.key() == Qt::Key_F4 && key.modifiers() == Qt::NoModifier) ||
           (key.key() == Qt::Key_Down && key.modifiers() == Qt::AltModifier);
}

/// Qt opens the calendar for a press on the arrow alone.
void open_calendar(QDateEdit& edit) {
    QStyleOptionComboBox option;
    option.initFrom(&edit);
    option.editable = true;
    option.subControls = QStyle::SC_All;
    const QPointF arrow =
        edit.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &edit).center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, edit.mapToGlobal(arrow), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&edit, &press);
}

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
    if (event.type() == QEvent::KeyPress && opens_calendar(static_cast<const QKeyEvent&>(event))) {
        open_calendar(widget());
        return true;
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
