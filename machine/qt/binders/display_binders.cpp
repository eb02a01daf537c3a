#include "machine/qt/binders/display_binders.h"

#include "machine/qt/binders/drops.h"
#include "machine/qt/binders/key_of_caption.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/widgets/animation_player.h"
#include "machine/qt/widgets/announced_label.h"
#include "platform/error.h"

#include <QDropEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QProgressBar>

namespace machine::qt {

using platform::Aspect;

namespace {

/// A key counts too: the widget may be a link that takes the focus.
bool is_click(const QWidget& widget, const QEvent& event) {
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent&>(event).key();
        return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    }
    if (event.type() != QEvent::MouseButtonRelease) return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    return mouse.button() == Qt::LeftButton && widget.rect().contains(mouse.position().toPoint());
}

}  // namespace

LabelBinder::LabelBinder(BoundForm& bound, platform::Label& control, QLabel& label)
    : BinderOf(bound, control, label) {
    label.setTextFormat(Qt::PlainText);
    show(Aspect::caption);
}

void LabelBinder::show(Aspect aspect) {
    if (aspect != Aspect::caption) return;
    widget().setText(caption_with_key(widget(), shown_text(control().caption())));
    if (auto* announced = qobject_cast<AnnouncedLabel*>(&widget())) announced->announce();
}

bool LabelBinder::filter(QObject&, QEvent& event) {
    if (!is_click(widget(), event)) return false;
    act([this] { control().Click.raise(); });
    return event.type() == QEvent::KeyPress;
}

ImageBinder::ImageBinder(BoundForm& bound, platform::Image& control, QLabel& label)
    : BinderOf(bound, control, label) {
    if (!control.picture().empty()) show_picture();
}

void ImageBinder::show(Aspect aspect) {
    if (aspect == Aspect::picture) show_picture();
}

void ImageBinder::show_picture() {
    QPixmap picture;
    platform::ignore_errors(
        [&] { picture.loadFromData(QByteArray::fromStdString(bound().files.read(control().picture()))); });
    widget().setPixmap(picture);
}

bool ImageBinder::filter(QObject&, QEvent& event) {
    if (!is_click(widget(), event)) return false;
    act([this] { control().Click.raise(); });
    return event.type() == QEvent::KeyPress;
}

FrameBinder::FrameBinder(BoundForm& bound, platform::Frame& control, QWidget& widget)
    : BinderOf(bound, control, widget) {
    if (auto* box = qobject_cast<QGroupBox*>(&widget)) box->setTitle(to_qstring(control.caption()));
    widget.setAcceptDrops(control.Drop.connected());
}

bool FrameBinder::filter(QObject&, QEvent& event) {
    const bool drags = event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove;
    if (!drags && event.type() != QEvent::Drop) return false;
    auto& drop = static_cast<QDropEvent&>(event);
    answer_drag(drop, control().Drop.connected() && control().takes_input());
    if (drags || !drop.isAccepted()) return true;
    act([&] { control().Drop.raise(dropped_by(drop, bound().files)); });
    return true;
}

PictureBoxBinder::PictureBoxBinder(BoundForm& bound, platform::PictureBox& control, QFrame& frame)
    : BinderOf(bound, control, frame) {
    show(Aspect::border);
}

void PictureBoxBinder::show(Aspect aspect) {
    if (aspect == Aspect::border)
        widget().setFrameShape(control().border() ? QFrame::StyledPanel : QFrame::NoFrame);
}

bool PictureBoxBinder::filter(QObject&, QEvent& event) {
    if (is_click(widget(), event)) act([this] { control().Click.raise(); });
    return false;
}

ProgressBarBinder::ProgressBarBinder(BoundForm& bound, platform::ProgressBar& control, QProgressBar& bar)
    : BinderOf(bound, control, bar) {
    bar.setRange(0, 100);
    bar.setValue(control.value());
}

void ProgressBarBinder::show(Aspect aspect) {
    if (aspect != Aspect::value) return;
    widget().setValue(control().value());
    // The handlers run long loops in which nothing else is painted; an eye cannot tell more than this.
    constexpr int MILLISECONDS_BETWEEN = 30;
    if (painted_.isValid() && !painted_.hasExpired(MILLISECONDS_BETWEEN)) return;
    widget().repaint();
    painted_.start();
}

AnimationBinder::AnimationBinder(BoundForm& bound, platform::Animation& control, AnimationPlayer& player)
    : BinderOf(bound, control, player) {
    open();
}

void AnimationBinder::show(Aspect aspect) {
    if (aspect == Aspect::picture) {
        open();
    } else if (aspect == Aspect::value) {
        control().playing() ? widget().play() : widget().stop();
    }
}

void AnimationBinder::open() {
    const bool read = !control().path().empty() && platform::ignore_errors([this] {
        widget().open(QByteArray::fromStdString(bound().files.read(control().path())));
    });
    if (!read) widget().close();
    if (control().playing()) widget().play();
}

}  // namespace machine::qt
