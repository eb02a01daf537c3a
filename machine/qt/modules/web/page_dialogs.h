#pragma once

#include <QString>
#include <QUrl>

class QWidget;

namespace machine::qt {

/// The boxes that a page opens. They name the site, and from the second box on the user can stop further
/// ones; otherwise a page could open boxes forever, and the form could not be closed.
class PageDialogs {
  public:
    void alert(QWidget* parent, const QUrl& origin, const QString& text);
    /// Whether the user agreed; false when the user has stopped the boxes.
    bool confirm(QWidget* parent, const QUrl& origin, const QString& text);

  private:
    bool ask(QWidget* parent, const QUrl& origin, const QString& text, bool is_question);

    bool asked_before_ = false;
    bool unwanted_ = false;
};

}  // namespace machine::qt
