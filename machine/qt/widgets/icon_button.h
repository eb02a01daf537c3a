#pragma once

#include "machine/qt/look/late_icon.h"

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

}  // namespace machine::qt
