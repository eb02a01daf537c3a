#pragma once

#include "machine/qt/look/late_icon.h"

#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace machine::qt {

/// A button with one of the program's pictures, which is read when the button is first painted.
class IconButton : public QPushButton {
    Q_OBJECT
    /// The picture's name in the resources, such as "send".
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

/// One of the program's pictures, drawn for the desktop's scale so that it is never blurred.
class IconLabel : public QLabel {
    Q_OBJECT
    /// The picture's name in the resources, such as "app".
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
