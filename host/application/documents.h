#pragma once

#include "host/base/object.h"

#include <Core/Data.h>
#include <Core/Document.h>

#include <cstddef>
#include <vector>

namespace host {

/// The documents that are open in the host.
class DocumentsObject final : public Object<adsk::core::Documents> {
public:
    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] adsk::core::Ptr<adsk::core::Document> item(std::size_t index) const override;
    adsk::core::Ptr<adsk::core::Document> open(
        const adsk::core::Ptr<adsk::core::DataFile>& dataFile, bool visible) override;

    /// @name For the host itself
    /// @{

    /// Counts a document among the open ones; whoever made it ends it.
    void add(const adsk::core::Ptr<adsk::core::Document>& document);

    /// Counts it among them and ends it with the host.
    void own(const adsk::core::Ptr<adsk::core::Document>& document);

    /// Those that are owned, in the order in which they were opened.
    [[nodiscard]] const std::vector<adsk::core::Ptr<adsk::core::Document>>& owned() const {
        return owned_;
    }

    /// Ends those that are owned.
    void dispose();
    /// @}

private:
    /// Those that were not ended since.
    [[nodiscard]] std::vector<adsk::core::Ptr<adsk::core::Document>> open() const;

    std::vector<adsk::core::Ptr<adsk::core::Document>> all_;
    std::vector<adsk::core::Ptr<adsk::core::Document>> owned_;
};

}  // namespace host
