#pragma once

#include "machine/qt/look/late_icon.h"

#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace machine::qt {

/// A button with a picture of the program's own, which is read when the button is first painted.
class IconButton : public QPushButton {
    Q_OBJECT
    /// The picture's name among the resources, as "send".
    Q_PROPERTY(QString picture READ picture WRITE set_picture)

  public:
    using QPushButton::QPushButton;

    const QString& picture() const { return name_; }
    void set_picture(const QString& name) {
        name_ = name;
        setIcon(late_icon(name));
    }

  private:
    QString name_;
};

/// A picture of the program's own, drawn anew for every scale of the desktop so that it is never blurred.
class IconLabel : public QLabel {
    Q_OBJECT
    /// The picture's name among the resources, as "app".
    Q_PROPERTY(QString picture READ picture WRITE set_picture)

  public:
    using QLabel::QLabel;

    const QString& picture() const { return name_; }
    void set_picture(const QString& name);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString name_;
    QIcon icon_;
};

}  // namespace machine::qt
