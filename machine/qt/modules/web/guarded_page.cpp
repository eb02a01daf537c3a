#include "machine/qt/modules/web/guarded_page.h"

#include "machine/qt/modules/web/narrow_profile.h"

#include <QAuthenticator>
#include <QWebEngineCertificateError>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineView>

namespace machine::qt {

GuardedPage::GuardedPage(QWebEngineProfile& profile) : QWebEnginePage(&profile) {
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
    connect(this, &QWebEnginePage::certificateError, this,
            [](QWebEngineCertificateError error) { error.rejectCertificate(); });
    connect(this, &QWebEnginePage::selectClientCertificate, this,
            [](QWebEngineClientCertificateSelection selection) { selection.selectNone(); });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
            [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
    // A new window opens in place of this page if the user clicked for it, and otherwise not at all.
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest& window) {
                if (window.isUserInitiated() && is_web_address(window.requestedUrl()))
                    load(window.requestedUrl());
            });
    // An empty authenticator gives up.
    connect(this, &QWebEnginePage::authenticationRequired, this,
            [](const QUrl&, QAuthenticator* authenticator) { *authenticator = QAuthenticator(); });
    connect(this, &QWebEnginePage::proxyAuthenticationRequired, this,
            [](const QUrl&, QAuthenticator* authenticator, const QString&) {
                *authenticator = QAuthenticator();
            });
}

bool GuardedPage::acceptNavigationRequest(const QUrl& address, NavigationType, bool is_main_frame) {
    if (is_web_address(address)) return true;
    // Frames start as "about:blank" and are filled by scripts.
    return !is_main_frame && address.scheme() == QStringLiteral("about");
}

void GuardedPage::javaScriptAlert(const QUrl& origin, const QString& text) {
    dialogs_.alert(QWebEngineView::forPage(this), origin, text);
}

bool GuardedPage::javaScriptConfirm(const QUrl& origin, const QString& text) {
    return dialogs_.confirm(QWebEngineView::forPage(this), origin, text);
}

/// Deliberately no field to type into: a page should ask within the page, where the user sees whose question
/// it is.
bool GuardedPage::javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) { return false; }

}  // namespace machine::qt
