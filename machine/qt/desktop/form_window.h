#pragma once

#include "machine/qt/binders/form_binder.h"
#include "machine/qt/desktop/width_limits.h"

#include <QObject>

class QKeyEvent;

namespace machine::qt {

/// The window of a form: shows the form's caption and placement and reports the user's changes of them. It is
/// destroyed with its window.
class FormWindow : public QObject, public platform::FormView {
    Q_OBJECT

  public:
    FormWindow(platform::Form& form, QWidget& window, platform::Files& files);
    ~FormWindow() override;

    QWidget& window() { return window_; }
    const std::optional<QPoint>& popup_point() const { return bound_.popup_point; }

    /// Shows the window, or brings it to the front. The form is activated when the window has been painted,
    /// even if the desktop does not give it the focus yet.
    void show();
    /// Shows the window as a modal one in front of another. The user can maximise it if the screen's property
    /// `maximisable` says so.
    void show_in_front_of(QWidget* parent);

    /// Parts with the form, which may be destroyed afterwards. The window is hidden at once and deleted when
    /// none of its code is running any more.
    void close();

    void caption_changed() override;
    void placement_changed() override;
    void minimum_size_changed() override;
    void fit_contents() override;

  signals:
    void closed();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    bool press_key(const QKeyEvent& event);
    void activate_first();
    void activate_again();
    void make_room_for_wrapped_texts();
    /// Puts the window there, or as near as the work area lets it.
    void put(const QRect& place);
    platform::Placement place() const;
    void report_place();

    platform::Form& form_;
    QWidget& window_;
    BoundForm bound_;
    FormBinder binder_;
    WidthLimits width_limits_;
    platform::Placement placed_;
    bool placing_ = false;
    bool activated_ = false;
    bool activated_early_ = false;
};

}  // namespace machine::qt
