#include "machine/qt/widgets/day_calendar.h"

#include "machine/qt/look/colours.h"

#include <QBoxLayout>
#include <QEvent>
#include <QPainter>
#include <QSpinBox>
#include <QTextCharFormat>
#include <QToolButton>

namespace machine::qt {

DayCalendar::DayCalendar(QWidget* parent) : QCalendarWidget(parent) {
    setVerticalHeaderFormat(NoVerticalHeader);
    setFirstDayOfWeek(Qt::Sunday);
    const std::pair<const char*, Qt::ArrowType> arrows[] = {{"qt_calendar_prevmonth", Qt::LeftArrow},
                                                            {"qt_calendar_nextmonth", Qt::RightArrow}};
    for (const auto& [name, arrow] : arrows) {
        auto* button = findChild<QToolButton*>(QLatin1StringView(name));
        if (button == nullptr) continue;
        button->setIcon({});
        button->setArrowType(arrow);
        button->setForegroundRole(QPalette::HighlightedText);
    }
    put_year_first();
    // The edge is drawn here.
    setContentsMargins(1, 1, 1, 1);
    colour_days();
}

/// As dates are written in Korean, "2026년 11월". Qt begins with the month.
void DayCalendar::put_year_first() {
    auto* month = findChild<QToolButton*>(QStringLiteral("qt_calendar_monthbutton"));
    auto* year = findChild<QToolButton*>(QStringLiteral("qt_calendar_yearbutton"));
    auto* typed_year = findChild<QSpinBox*>(QStringLiteral("qt_calendar_yearedit"));
    if (month == nullptr || year == nullptr || typed_year == nullptr) return;
    // The button shows the text of the field into which the year is typed.
    typed_year->setSuffix(QStringLiteral("년"));
    year->setText(typed_year->text());
    auto* bar = qobject_cast<QBoxLayout*>(month->parentWidget()->layout());
    if (bar == nullptr) return;
    const int first = bar->indexOf(month);
    const int second = bar->indexOf(year);
    bar->removeWidget(year);
    bar->insertWidget(first, year);
    bar->removeWidget(month);
    bar->insertWidget(second, month);
}

void DayCalendar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(colours_of(palette()).line);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DayCalendar::showEvent(QShowEvent* event) {
    QCalendarWidget::showEvent(event);
    // Behind the field, which gives the calendar its own range as it opens. A day that is chosen already
    // stays so.
    QMetaObject::invokeMethod(
        this, [this] { setMinimumDate(qMin(QDate::currentDate(), selectedDate())); }, Qt::QueuedConnection);
}

void DayCalendar::changeEvent(QEvent* event) {
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) colour_days();
}

void DayCalendar::paintCell(QPainter* painter, const QRect& cell, QDate date) const {
    if (date < minimumDate()) {
        painter->fillRect(cell, palette().base());
        painter->setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter->drawText(cell, Qt::AlignCenter, QString::number(date.day()));
        return;
    }
    QCalendarWidget::paintCell(painter, cell, date);
    if (date != QDate::currentDate()) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colours_of(palette()).accent, 1.5));
    painter->drawRoundedRect(QRectF(cell).adjusted(2, 2, -2, -2), 4, 4);
    painter->restore();
}

void DayCalendar::colour_days() {
    const Colours colours = colours_of(palette());
    QTextCharFormat header;
    header.setForeground(colours.muted);
    header.setBackground(palette().base());
    if (headerTextFormat() != header) setHeaderTextFormat(header);
    const std::pair<Qt::DayOfWeek, QColor> weekend[] = {{Qt::Saturday, colours.accent},
                                                        {Qt::Sunday, colours.failure}};
    for (const auto& [day, colour] : weekend) {
        QTextCharFormat format;
        format.setForeground(colour);
        if (weekdayTextFormat(day) != format) setWeekdayTextFormat(day, format);
    }
}

}  // namespace machine::qt
