#include "machine/qt/widgets/announced_label.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace machine::qt {

namespace {

/// What readers take for an alert, which they read when it appears. They read no other label without being
/// asked.
class AnnouncedLine : public QAccessibleWidget {
  public:
    explicit AnnouncedLine(AnnouncedLabel& label)
        : QAccessibleWidget(&label, QAccessible::AlertMessage), label_(label) {}

    QString text(QAccessible::Text part) const override {
        return part == QAccessible::Name ? label_.text() : QAccessibleWidget::text(part);
    }

  private:
    const AnnouncedLabel& label_;
};

QAccessibleInterface* make_line(const QString&, QObject* object) {
    auto* label = qobject_cast<AnnouncedLabel*>(object);
    return label == nullptr ? nullptr : new AnnouncedLine(*label);
}

}  // namespace

AnnouncedLabel::AnnouncedLabel(QWidget* parent) : QLabel(parent) {
    // Qt ignores a factory that it has.
    QAccessible::installFactory(make_line);
}

void AnnouncedLabel::announce() {
    if (text().isEmpty() || !isVisible()) return;
    QAccessibleEvent appears(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appears);
}

}  // namespace machine::qt
