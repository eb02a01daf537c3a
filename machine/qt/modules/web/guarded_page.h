#pragma once

#include "machine/qt/modules/web/page_dialogs.h"

#include <QWebEnginePage>

namespace machine::qt {

/// A page that may show itself, open its own dialogs and go to other pages of the web. Everything else is
/// refused silently.
class GuardedPage : public QWebEnginePage {
    Q_OBJECT

  public:
    explicit GuardedPage(QWebEngineProfile& profile);

  protected:
    bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool is_main_frame) override;
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    void javaScriptAlert(const QUrl& origin, const QString& text) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& proposal,
                          QString* answer) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                  const QString&) override {}

  private:
    PageDialogs dialogs_;
};

}  // namespace machine::qt
