#pragma once

#include <QString>
#include <memory>

class QSettings;
class QWidget;

namespace machine::qt {

/// What the user has made of the windows' insides, kept over restarts: the sizes of splitters, the widths of
/// columns and the sizes of windows that can be maximised. In pixels for text of 12 pixels, so that it fits
/// another font as well. The main window's place is not among it: the settings have that.
class KeptLayout {
  public:
    /// Keeps nothing if the file has no name.
    explicit KeptLayout(QString file);
    ~KeptLayout();

    /// To be called before the window's form learns its size.
    void restore_size(QWidget& window);
    /// To be called when the window's lists have their columns. A splitter that was never moved gets the
    /// sizes of its list `first_sizes`.
    void restore_parts(QWidget& window);
    void keep(const QWidget& window);

  private:
    /// Opened at the first use, because tests and tools have none.
    QSettings* settings();

    QString file_;
    std::unique_ptr<QSettings> settings_;
};

}  // namespace machine::qt
