#pragma once

#include <QHeaderView>
#include <vector>

namespace machine::qt {

/// Shares a list's room among its columns. The user can drag every column; those that share the room grow and
/// shrink with the list in the proportions that they have.
class ColumnWidths : public QObject {
    Q_OBJECT

  public:
    explicit ColumnWidths(QHeaderView& header);

    /// Sets the columns' widths for text of 12 pixels from a screen's list. A "*" before the width lets the
    /// column share the room, but not be narrower than that, or than the second width in "*40/30"; one of
    /// width 0 holds data for the handlers and is not shown.
    void set(const QStringList& widths);
    /// Fills the room.
    void fill(int room);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void note_drag();
    int text_size() const;
    int length() const;

    struct Sharing {
        int column;
        /// For text of 12 pixels.
        int least;
    };

    QHeaderView& header_;
    std::vector<Sharing> sharing_;
    /// Of the text for which the columns have their widths.
    int text_size_ = 0;
    /// How much wider than the list the user has made its columns.
    int beyond_ = 0;
    bool filling_ = false;
};

}  // namespace machine::qt
