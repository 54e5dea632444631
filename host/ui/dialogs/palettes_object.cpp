#include "host/ui/dialogs/palettes_object.h"

namespace host::ui {

core::Ptr<core::Palette> PalettesObject::add(const std::string& id, const std::string& name,
                                             const std::string& htmlFileURL, bool isVisible,
                                             bool showCloseButton, bool isResizable, int width,
                                             int height, bool useNewWebBrowser) {
    constexpr const char* kOperation = "Palettes::add";
    if (closed<"add">(*this)) return {};
    if (id.empty() || find(id)) {
        misuse(kOperation,
               id.empty() ? "a palette needs an id" : "the id \"" + id + "\" is in use");
        return {};
    }
    all_.push_back(make<PaletteObject>(this, PaletteState{.id = id,
                                                          .name = name,
                                                          .htmlFileURL = htmlFileURL,
                                                          .visible = isVisible,
                                                          .closeButton = showCloseButton,
                                                          .resizable = isResizable,
                                                          .newWebBrowser = useNewWebBrowser,
                                                          .width = width,
                                                          .height = height}));
    return all_.back();
}

void PalettesObject::clear() { disposeEntries(all_); }

void PalettesObject::dispose() {
    clear();
    invalidate();
}

}  // namespace host::ui
