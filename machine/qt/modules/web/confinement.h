#pragma once

namespace machine::qt {

/// Whether the engine can run its processes in a sandbox on this machine.
enum class Confinement {
    /// It can.
    possible,
    /// The user is root, for whom the engine has no sandbox. Pages are shown without one.
    not_for_root,
    /// The system forbids it to users. The engine would end the whole program, so no pages are shown.
    impossible,
};

Confinement confinement();

}  // namespace machine::qt
