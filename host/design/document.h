#pragma once

#include "host/base/api_names.h"
#include "host/design/design_data.h"
#include "host/design/history.h"
#include "host/design/unmeasured.h"

#include <Core/Application.h>
#include <Core/Data.h>
#include <Core/Document.h>
#include <Fusion/Design.h>
#include <Fusion/Sketch.h>

#include <cstddef>
#include <cstdint>
#include <vector>

/// Documents: a design as the public API shows it, made from a `DesignData` and read back as one.
///
/// The caller that opens a document owns it and ends it. A module may keep its handles on anything
/// of a document for ever: after the end they are not valid, and their members return nothing.
namespace host {

/// Opens a design as a document of `parent`, which may be null.
///
/// The root component is called like the document, and components that share a name are numbered,
/// as in `makeNamesUnique`. Throws `DesignError` where `checkDesign` does. Nothing is measured.
core::Ptr<core::Document> makeDocument(DesignData data,
                                       const core::Ptr<core::Application>& parent = nullptr);

/// The design of a new document: "Untitled", with nothing in it.
DesignData emptyDesign();

/// The design of a document, null for null and after the end.
core::Ptr<fusion::Design> designOf(const core::Ptr<core::Document>& document);

/// What a workspace that is not for modelling shows of it: a product that is no design. Null for
/// null and after the end.
core::Ptr<core::Product> otherProductOf(const core::Ptr<core::Document>& document);

/// The documents that its referenced components come from, in the order of their first
/// components.
std::vector<core::Ptr<core::Document>> referencesOf(const core::Ptr<core::Document>& document);

/// One sketch of a component, for a session that edits it; null where there is none. Components are
/// counted as in `DesignData::components`.
core::Ptr<fusion::Sketch> sketchOf(const core::Ptr<core::Document>& document, std::size_t component,
                                   std::size_t sketch);

/// Ties a document to its file in the user's data; from then on it counts as saved.
void setDataFile(const core::Ptr<core::Document>& document,
                 const core::Ptr<core::DataFile>& dataFile);

/// The design with all that was done to it; empty for null and after the end.
DesignData snapshot(const core::Ptr<core::Document>& document);

/// The components that could not be measured so far, since they were asked for.
std::vector<Unmeasured> unmeasuredIn(const core::Ptr<core::Document>& document);

/// How often the design was changed since it was opened.
std::uint64_t editCount(const core::Ptr<core::Document>& document);

/// @name Taking back what was done to a document, as in `History`
/// Nothing happens for null and after the end.
/// @{
History::Record beginRecord(const core::Ptr<core::Document>& document);
void endRecord(const core::Ptr<core::Document>& document, History::Record record);
void takeBack(const core::Ptr<core::Document>& document, History::Record record);
void keepRecord(const core::Ptr<core::Document>& document, History::Record record);
/// @}

/// Closes a document and those it refers to. Everything handed out of it becomes invalid.
void endDocument(const core::Ptr<core::Document>& document);

}  // namespace host
