#pragma once

#include "host/ui/collection_object.h"
#include "host/ui/dialogs/palette_object.h"

#include <string>

namespace host::ui {

/// All palettes; owns them.
class PalettesObject final : public CollectionObject<core::Palettes, PaletteObject> {
public:
    PalettesObject() = default;

    core::Ptr<core::Palette> add(const std::string& id, const std::string& name,
                                 const std::string& htmlFileURL, bool isVisible,
                                 bool showCloseButton, bool isResizable, int width, int height,
                                 bool useNewWebBrowser) override;

    [[nodiscard]] List all() const override { return all_; }
    void remove(PaletteObject& palette) { removeEntry(all_, palette); }

    /// Deletes all palettes.
    void clear();
    void dispose();

private:
    List all_;
};

}  // namespace host::ui
