#pragma once

#include "platform/error.h"

#include <QObject>
#include <QtPlugin>

namespace machine::qt {

/// A module of the program: a library with heavy dependencies that lies beside the program and is loaded for
/// its first use, so that the start does not wait for it. Each has a folder here with an interface, which is
/// all that the program knows of it, and a plug-in class that implements the interface.
struct ModuleInfo {
    /// In Korean, what it is for.
    const char* purpose;
    /// Its file without ".so".
    const char* file;
    /// The package that brings it.
    const char* package;
};

/// The module's plug-in object; null when the module is missing or cannot be loaded.
QObject* plugin_of(const ModuleInfo& module);

/// RuntimeError 48, whose description names the file and the package that has to be installed.
platform::RuntimeError missing(const ModuleInfo& module);

/// Loads the module of the interface, or returns it when it is loaded already. Raises RuntimeError 48 when
/// that is impossible.
template <class Interface>
Interface& load_module() {
    auto* loaded = qobject_cast<Interface*>(plugin_of(Interface::MODULE));
    if (loaded == nullptr) throw missing(Interface::MODULE);
    return *loaded;
}

}  // namespace machine::qt
