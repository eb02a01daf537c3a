#include "machine/qt/desktop/x_server.h"

#include <QGuiApplication>

namespace machine::qt {

xcb_connection_t* x_server() {
    // The offscreen platform has the interface, too, but no server behind it.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr && QGuiApplication::platformName() == QStringLiteral("xcb") ? x11->connection()
                                                                                      : nullptr;
}

}  // namespace machine::qt
