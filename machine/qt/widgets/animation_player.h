#pragma once

#include <QImage>
#include <QList>
#include <QTimer>
#include <QWidget>

class QByteArray;

namespace machine::qt {

/// Shows an uncompressed AVI film, over and over. It stands still while it is hidden or stopped and needs no
/// time then.
class AnimationPlayer : public QWidget {
    Q_OBJECT

  public:
    explicit AnimationPlayer(QWidget* parent = nullptr);

    /// Shows the first frame of the film, stopped, in place of what was shown. Returns false and shows
    /// nothing when the bytes are no film that can be played.
    bool open(const QByteArray& bytes);

    /// Goes on from the present frame; without a film it does nothing.
    void play();

    /// Stands still on the present frame.
    void stop();

    /// Stops and shows nothing.
    void close();

    /// The size of the film's frames; no size without a film.
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void show_next_frame();

    QList<QImage> frames_;
    qsizetype present_ = 0;
    bool playing_ = false;
    QTimer timer_;
};

}  // namespace machine::qt
