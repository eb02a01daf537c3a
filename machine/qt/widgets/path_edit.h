#pragma once

#include <QLineEdit>

namespace machine::qt {

/// A field for a path. While it has no focus it shows the file's name and behind it the folder, cut in the
/// middle when that is too long; the tool tip shows it whole.
class PathEdit : public QLineEdit {
    Q_OBJECT

  public:
    /// A file that is dragged here is for the panel around the field: its path would go between the letters.
    explicit PathEdit(QWidget* parent = nullptr) : QLineEdit(parent) { setAcceptDrops(false); }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect text_place() const;
    QString shown() const;
};

}  // namespace machine::qt
