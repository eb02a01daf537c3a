#pragma once

#include <QImage>
#include <QList>
#include <QTimer>
#include <QWidget>

class QByteArray;

namespace machine::qt {

/// Plays an uncompressed AVI film in a loop. While it is hidden or stopped it uses no processor time.
class AnimationPlayer : public QWidget {
    Q_OBJECT

  public:
    explicit AnimationPlayer(QWidget* parent = nullptr);

    /// Shows the first frame of the film, stopped. Returns false and shows nothing when the film cannot be
    /// played.
    bool open(const QByteArray& bytes);

    /// Continues from the present frame; does nothing without a film.
    void play();

    /// Stops at the present frame.
    void stop();

    /// Stops and shows nothing.
    void close();

    /// The size of the film's frames; invalid without a film.
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
