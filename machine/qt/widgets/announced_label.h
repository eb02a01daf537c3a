#pragma once

#include <QLabel>

namespace machine::qt {

/// A line that tells how something is going: a screen reader reads it aloud whenever it changes.
class AnnouncedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit AnnouncedLabel(QWidget* parent = nullptr);

    /// To be called when the text has changed.
    void announce();
};

}  // namespace machine::qt
