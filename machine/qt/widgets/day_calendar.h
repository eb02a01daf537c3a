#pragma once

#include <QCalendarWidget>

namespace machine::qt {

/// A calendar of the days that are still to come: today has a ring, days that are over cannot be chosen,
/// Sundays are red and Saturdays blue.
class DayCalendar : public QCalendarWidget {
    Q_OBJECT

  public:
    explicit DayCalendar(QWidget* parent = nullptr);

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void paintCell(QPainter* painter, const QRect& cell, QDate date) const override;

  private:
    void put_year_first();
    void colour_days();
};

}  // namespace machine::qt
