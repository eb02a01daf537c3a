#pragma once

#include "machine/carrier/protocol.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace machine::carrier {

/// The carrier's library in the current directory or, when there is none, in others. The library and each
/// export are looked up when first called; after a failure the next call looks again.
class LoadedLibrary {
  public:
    /// With the other folders, of which the first that has the library counts.
    explicit LoadedLibrary(std::vector<std::string> folders);

    /// Calls the export. The library gets copies of the texts and may write into them; the answer's texts are
    /// in `copies`. What the library raises ends the process.
    Answer run(const Call& call, WipedBytes& copies);

  private:
    struct Unload {
        void operator()(void* library) const;
    };

    bool is_loaded();
    void* address_of(Export which);

    std::vector<std::string> folders_;
    std::unique_ptr<void, Unload> library_;
    std::map<Export, void*> exports_;
};

}  // namespace machine::carrier
