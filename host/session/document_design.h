#pragma once

#include "host/design/design_data.h"
#include "host/design/document.h"

namespace host {

/// The design of a document as it is now, whichever is active.
inline DesignData designIn(const adsk::core::Ptr<adsk::core::Document>& document) {
    return snapshot(document);
}

/// What the design of a new document is.
inline DesignData newDesign() { return emptyDesign(); }

}  // namespace host
