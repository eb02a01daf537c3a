#pragma once

#include <QHash>

class QWidget;

namespace machine::qt {

/// The least and the largest widths of a window's controls, which its screen gives for text of 12 pixels:
/// keeps them fit for the window's font, as far as the desktop has room for the window. Labels ask for the
/// room of their texts themselves, and what has one width, such as a picture, keeps it.
class WidthLimits {
  public:
    explicit WidthLimits(const QWidget& window);

    /// To be called when the window's font has changed.
    void fit();

  private:
    struct Limits {
        int least;
        int most;
    };

    const QWidget& window_;
    int window_width_;
    QHash<QWidget*, Limits> for_small_text_;
};

}  // namespace machine::qt
