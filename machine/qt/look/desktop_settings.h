#pragma once

#include <QDBusVariant>
#include <QFont>
#include <QObject>
#include <QString>

class QDBusConnection;
class QDBusMessage;

namespace machine::qt {

/// What the user sets in the desktop's settings, taken for the program's windows at the start and whenever it
/// changes: light or dark, high contrast, the font and its scale. They are asked of the desktop's portal;
/// where there is none, everything stays as the toolkit has it.
///
/// The toolkit knows the colours of some desktops by itself, and follows them; those stay.
class DesktopSettings : public QObject {
    Q_OBJECT

  public:
    /// Waits for no answer.
    explicit DesktopSettings(const QDBusConnection& bus);

  private slots:
    void change(const QString& group, const QString& key, const QDBusVariant& value);

  private:
    void take_all(const QDBusMessage& answer);
    void take(const QString& group, const QString& key, const QVariant& value);
    void show();
    void show_colours() const;
    void show_font() const;

    const bool toolkit_has_colours_;
    const bool toolkit_has_font_;
    const QFont font_of_toolkit_;
    uint colour_scheme_ = 0;
    uint contrast_ = 0;
    QString font_name_;
    double text_scale_ = 1;
};

}  // namespace machine::qt
