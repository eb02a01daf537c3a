#pragma once

#include <QString>
#include <QUrl>

class QWidget;

namespace machine::qt {

/// The boxes that a page opens. They say whose they are, and from the second on the user can tell the page to
/// leave off: a page that never stops asking would keep him from closing the form.
class PageDialogs {
  public:
    void alert(QWidget* parent, const QUrl& origin, const QString& text);
    /// Whether the user agreed; without being asked he does not.
    bool confirm(QWidget* parent, const QUrl& origin, const QString& text);

  private:
    bool ask(QWidget* parent, const QUrl& origin, const QString& text, bool is_question);

    bool asked_before_ = false;
    bool unwanted_ = false;
};

}  // namespace machine::qt
