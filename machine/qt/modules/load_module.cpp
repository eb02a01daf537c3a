#include "machine/qt/modules/load_module.h"

#include <QPluginLoader>

namespace machine::qt {

using platform::RuntimeError;

QObject* plugin_of(const ModuleInfo& module) {
    return QPluginLoader(QString::fromLatin1(module.file)).instance();
}

RuntimeError missing(const ModuleInfo& module) {
    const QString description = QStringLiteral("%1 모듈(%2.so)이 설치되어 있지 않습니다.")
                                    .arg(QString::fromUtf8(module.purpose), QString::fromLatin1(module.file));
    return RuntimeError(platform::ErrorNumber::library_not_loaded, description.toStdU16String());
}

}  // namespace machine::qt
