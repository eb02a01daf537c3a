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
    // In place of this page. What no click of the user began is not even asked about.
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](const QWebEngineNewWindowRequest& window) {
                if (window.isUserInitiated() && is_web_address(window.requestedUrl()))
                    load(window.requestedUrl());
            });
    // An authenticator without anything in it gives up.
    connect(this, &QWebEnginePage::authenticationRequired, this,
            [](const QUrl&, QAuthenticator* authenticator) { *authenticator = QAuthenticator(); });
    connect(this, &QWebEnginePage::proxyAuthenticationRequired, this,
            [](const QUrl&, QAuthenticator* authenticator, const QString&) {
                *authenticator = QAuthenticator();
            });
}

bool GuardedPage::acceptNavigationRequest(const QUrl& address, NavigationType, bool is_main_frame) {
    if (is_web_address(address)) return true;
    // Frames start empty, and pages fill them by script.
    return !is_main_frame && address.scheme() == QStringLiteral("about");
}

void GuardedPage::javaScriptAlert(const QUrl& origin, const QString& text) {
    dialogs_.alert(QWebEngineView::forPage(this), origin, text);
}

bool GuardedPage::javaScriptConfirm(const QUrl& origin, const QString& text) {
    return dialogs_.confirm(QWebEngineView::forPage(this), origin, text);
}

/// Deliberately no line to type into: what a page asks for belongs into the page, where the user sees whose
/// it is.
bool GuardedPage::javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) { return false; }

}  // namespace machine::qt
