#include "machine/qt/modules/web/narrow_profile.h"

#include <QWebEngineSettings>

namespace machine::qt {

bool is_web_address(const QUrl& address) {
    return address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https");
}

void WebOnly::interceptRequest(QWebEngineUrlRequestInfo& request) {
    const QUrl address = request.requestUrl();
    // Pictures and scripts that a page contains or makes itself.
    const bool is_page_s_own =
        address.scheme() == QStringLiteral("data") || address.scheme() == QStringLiteral("blob");
    const bool is_page = request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
    request.block(!is_web_address(address) && (is_page || !is_page_s_own));
}

NarrowProfile::NarrowProfile() {
    setHttpAcceptLanguage(QStringLiteral("ko-KR,ko;q=0.9"));
    setUrlRequestInterceptor(&web_only_);

    // Pages that do not name their encoding use that of Korean desktops.
    settings()->setDefaultTextEncoding(QStringLiteral("EUC-KR"));
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    for (const auto refused :
         {QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::JavascriptCanAccessClipboard,
          QWebEngineSettings::JavascriptCanPaste, QWebEngineSettings::LocalContentCanAccessRemoteUrls,
          QWebEngineSettings::LocalContentCanAccessFileUrls, QWebEngineSettings::HyperlinkAuditingEnabled,
          QWebEngineSettings::PluginsEnabled, QWebEngineSettings::PdfViewerEnabled,
          QWebEngineSettings::FullScreenSupportEnabled, QWebEngineSettings::ScreenCaptureEnabled,
          QWebEngineSettings::WebGLEnabled, QWebEngineSettings::AutoLoadIconsForPage,
          QWebEngineSettings::AllowRunningInsecureContent,
          QWebEngineSettings::AllowGeolocationOnInsecureOrigins,
          QWebEngineSettings::AllowWindowActivationFromJavaScript, QWebEngineSettings::DnsPrefetchEnabled,
          QWebEngineSettings::NavigateOnDropEnabled, QWebEngineSettings::FocusOnNavigationEnabled}) {
        settings()->setAttribute(refused, false);
    }
    settings()->setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, true);
    settings()->setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
}

}  // namespace machine::qt
