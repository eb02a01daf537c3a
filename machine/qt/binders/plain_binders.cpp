#include "machine/qt/binders/plain_binders.h"

#include "machine/qt/typing/text_conversion.h"
#include "machine/qt/widgets/animation_player.h"
#include "platform/error.h"

#include <QDateEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QProgressBar>

namespace machine::qt {

using platform::Animation;
using platform::Aspect;
using platform::DatePicker;
using platform::Frame;
using platform::Image;
using platform::Label;
using platform::PictureBox;
using platform::ProgressBar;

namespace {

/// Also a key, where the widget is a link that takes the focus.
bool is_click(const QWidget& widget, const QEvent& event) {
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent&>(event).key();
        return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    }
    if (event.type() != QEvent::MouseButtonRelease) return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    return mouse.button() == Qt::LeftButton && widget.rect().contains(mouse.position().toPoint());
}

const QDate FIRST_DAY(1970, 1, 1);

}  // namespace

LabelBinder::LabelBinder(BoundForm& bound, Label& control, QLabel& label)
    : WidgetBinder(bound, control, label), control_(control), label_(label) {
    label.setTextFormat(Qt::PlainText);
    refresh(Aspect::caption);
}

void LabelBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::caption) return label_.setText(shown_text(control_.caption()));
    WidgetBinder::refresh(aspect);
}

bool LabelBinder::filter(QObject&, QEvent& event) {
    if (!is_click(label_, event)) return false;
    act([this] { control_.Click.raise(); });
    return event.type() == QEvent::KeyPress;
}

ImageBinder::ImageBinder(BoundForm& bound, Image& control, QLabel& label)
    : WidgetBinder(bound, control, label), control_(control), label_(label) {
    if (!control.picture().empty()) show_picture();
}

void ImageBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::picture) return show_picture();
    WidgetBinder::refresh(aspect);
}

void ImageBinder::show_picture() {
    QPixmap picture;
    platform::ignore_errors(
        [&] { picture.loadFromData(QByteArray::fromStdString(bound().files.read(control_.picture()))); });
    label_.setPixmap(picture);
}

bool ImageBinder::filter(QObject& object, QEvent& event) {
    if (!is_click(static_cast<QWidget&>(object), event)) return false;
    act([this] { control_.Click.raise(); });
    return event.type() == QEvent::KeyPress;
}

FrameBinder::FrameBinder(BoundForm& bound, Frame& control, QWidget& widget)
    : WidgetBinder(bound, control, widget) {
    if (auto* box = qobject_cast<QGroupBox*>(&widget)) box->setTitle(to_qstring(control.caption()));
}

PictureBoxBinder::PictureBoxBinder(BoundForm& bound, PictureBox& control, QFrame& frame)
    : WidgetBinder(bound, control, frame), control_(control), frame_(frame) {
    refresh(Aspect::border);
}

void PictureBoxBinder::refresh(Aspect aspect) {
    if (aspect != Aspect::border) return WidgetBinder::refresh(aspect);
    frame_.setFrameShape(control_.border() ? QFrame::StyledPanel : QFrame::NoFrame);
}

bool PictureBoxBinder::filter(QObject&, QEvent& event) {
    if (is_click(frame_, event)) act([this] { control_.Click.raise(); });
    return false;
}

ProgressBarBinder::ProgressBarBinder(BoundForm& bound, ProgressBar& control, QProgressBar& bar)
    : WidgetBinder(bound, control, bar), control_(control), bar_(bar) {
    bar.setRange(0, 100);
    bar.setValue(control.value());
}

void ProgressBarBinder::refresh(Aspect aspect) {
    if (aspect != Aspect::value) return WidgetBinder::refresh(aspect);
    bar_.setValue(control_.value());
    // The handlers run long loops in which nothing else is painted; an eye cannot tell more than this.
    constexpr int MILLISECONDS_BETWEEN = 30;
    if (painted_.isValid() && !painted_.hasExpired(MILLISECONDS_BETWEEN)) return;
    bar_.repaint();
    painted_.start();
}

DatePickerBinder::DatePickerBinder(BoundForm& bound, DatePicker& control, QDateEdit& edit)
    : WidgetBinder(bound, control, edit), control_(control), edit_(edit) {
    edit.setCalendarPopup(true);
    edit.setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    // The wheel alone does not bring the focus.
    edit.setFocusPolicy(Qt::StrongFocus);
    show_day();
    connect(&edit, &QDateEdit::userDateChanged, this, [this] { take_day(); });
}

void DatePickerBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::value) return show_day();
    WidgetBinder::refresh(aspect);
}

/// A wheel that is turned over the field to scroll is not meant for it.
bool DatePickerBinder::filter(QObject&, QEvent& event) {
    if (event.type() != QEvent::Wheel || edit_.hasFocus()) return false;
    event.ignore();
    return true;
}

void DatePickerBinder::show_day() {
    const auto day = std::chrono::floor<std::chrono::days>(control_.value());
    edit_.setDate(FIRST_DAY.addDays(day.time_since_epoch().count()));
}

/// The time of day stays when the user takes another day.
void DatePickerBinder::take_day() {
    if (!is_bound_live()) return;
    const auto shown = std::chrono::floor<std::chrono::days>(control_.value());
    const std::chrono::local_days chosen{std::chrono::days(FIRST_DAY.daysTo(edit_.date()))};
    if (chosen != shown) control_.set_value(control_.value() + (chosen - shown));
}

AnimationBinder::AnimationBinder(BoundForm& bound, Animation& control, AnimationPlayer& player)
    : WidgetBinder(bound, control, player), control_(control), player_(player) {
    open();
}

void AnimationBinder::refresh(Aspect aspect) {
    switch (aspect) {
        case Aspect::picture:
            return open();
        case Aspect::value:
            return control_.playing() ? player_.play() : player_.stop();
        default:
            return WidgetBinder::refresh(aspect);
    }
}

void AnimationBinder::open() {
    const bool read = !control_.path().empty() && platform::ignore_errors([this] {
        player_.open(QByteArray::fromStdString(bound().files.read(control_.path())));
    });
    if (!read) player_.close();
    if (control_.playing()) player_.play();
}

}  // namespace machine::qt
