#include "machine/qt/modules/load_module.h"

#include <QPluginLoader>

namespace machine::qt {

using platform::RuntimeError;

QObject* plugin_of(const ModuleInfo& module) {
    return QPluginLoader(QString::fromLatin1(module.file)).instance();
}

RuntimeError missing(const ModuleInfo& module) {
    const QString description =
        QStringLiteral("%1 모듈(%2.so)이 설치되어 있지 않습니다. %3 패키지를 설치하여 주십시오.")
            .arg(QString::fromUtf8(module.purpose), QString::fromLatin1(module.file),
                 QString::fromLatin1(module.package));
    return RuntimeError(platform::ErrorNumber::library_not_loaded, description.toStdU16String());
}

}  // namespace machine::qt
