#pragma once

namespace machine::qt {

/// What the engine's processes may be kept from on this machine.
enum class Confinement {
    /// They are shut in.
    possible,
    /// The user is root, for whom the engine does not do it: pages are shown all the same.
    not_for_root,
    /// The machine does not let users do it, and the engine would end the whole program over it.
    impossible,
};

Confinement confinement();

}  // namespace machine::qt
