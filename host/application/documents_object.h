#pragma once

#include "host/base/object.h"

#include <Core/Data.h>
#include <Core/Document.h>

#include <cstddef>
#include <vector>

namespace host {

/// The documents that are open in the host.
class DocumentsObject final : public Object<core::Documents> {
public:
    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::Document> item(std::size_t index) const override;
    core::Ptr<core::Document> open(const core::Ptr<core::DataFile>& dataFile,
                                   bool visible) override;
    core::Ptr<core::Document> add(core::DocumentTypes documentType, bool visible,
                                  const core::Ptr<core::NamedValues>& options) override;

    /// @name For the host itself
    /// @{

    /// Counts a document among the open ones; the code that made it ends it.
    void add(const core::Ptr<core::Document>& document);

    /// Counts it among them and ends it with the host.
    void own(const core::Ptr<core::Document>& document);

    /// Those that are owned, in the order in which they were opened.
    [[nodiscard]] const std::vector<core::Ptr<core::Document>>& owned() const { return owned_; }

    /// Ends those that are owned.
    void dispose();
    /// @}

private:
    /// Those that were not ended since.
    [[nodiscard]] std::vector<core::Ptr<core::Document>> open() const;

    std::vector<core::Ptr<core::Document>> all_;
    std::vector<core::Ptr<core::Document>> owned_;
};

}  // namespace host
