#pragma once

#include <QWidget>
#include <initializer_list>
#include <memory>

class QAbstractButton;
class QPushButton;

namespace Ui {
class RecorderPanel;
}

namespace platform {
class SoundRecorder;
}

namespace machine::qt {

/// The buttons, time, level and message of a recorder.
class RecorderPanel : public QWidget {
    Q_OBJECT

  public:
    explicit RecorderPanel(QWidget* parent = nullptr);
    ~RecorderPanel() override;

    void show_recorder(const platform::SoundRecorder& recorder);

    QAbstractButton& record_button() const;
    QAbstractButton& stop_button() const;
    QAbstractButton& play_button() const;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    struct ButtonState {
        QPushButton* button;
        bool enabled;
    };
    void make_room();
    void show_buttons(std::initializer_list<ButtonState> buttons);

    std::unique_ptr<Ui::RecorderPanel> ui_;
};

}  // namespace machine::qt
