#include "host/application/documents_object.h"

#include "host/application/application_object.h"
#include "host/base/clock.h"
#include "host/base/last_error.h"
#include "host/base/utf8_path.h"
#include "host/cloud/data_file_object.h"
#include "host/cloud/data_folder_object.h"
#include "host/cloud/storage_pace.h"
#include "host/design/document.h"
#include "host/import/read_design.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <string>

namespace host {

namespace {

/// Counts one try down; false when none is left.
bool takeOne(int& tries) {
    if (tries <= 0) return false;
    --tries;
    return true;
}

DesignData readConverted(const DataFileObject& file) {
    return readDesign(file.state().path, ReadingLimits(), ImportProgress(),
                      ApplicationObject::current()->importWarnings);
}

/// The design of a file; throws, with the reason, where it cannot be opened yet, or ever.
DesignData convertedDesign(const DataFileObject& file) {
    if (takeOne(storagePace().conversionsReturningNothing) ||
        clock::now() < file.state().convertedAt) {
        throw std::runtime_error(file.state().name + ": is still being converted");
    }
    return readConverted(file);
}

}  // namespace

std::size_t DocumentsObject::count() const {
    if (closed<"count">(*this)) return {};
    return open().size();
}

core::Ptr<core::Document> DocumentsObject::item(std::size_t index) const {
    if (closed<"item">(*this)) return {};
    const std::vector<core::Ptr<core::Document>> all = open();
    return index < all.size() ? all[index] : nullptr;
}

core::Ptr<core::Document> DocumentsObject::open(const core::Ptr<core::DataFile>& dataFile,
                                                bool /*visible*/) {
    if (closed<"open">(*this)) return {};
    if (takeOne(storagePace().conversionsThrowing)) {
        throw std::runtime_error("the conversion failed");
    }
    const core::Ptr<DataFileObject> file = dataFile;
    if (!file || !file->isValid()) {
        fail(core::BadApiCallError, "Documents::open: no such file");
        return {};
    }
    try {
        core::Ptr<core::Document> document =
            ApplicationObject::current()->openInHost(convertedDesign(*file));
        setDataFile(document, dataFile);
        return document;
    } catch (const std::exception& error) {
        fail(core::OperationFailed, std::string("Documents::open: ") + error.what());
        return {};
    }
}

core::Ptr<core::Document> DocumentsObject::add(core::DocumentTypes documentType, bool /*visible*/,
                                               const core::Ptr<core::NamedValues>& /*options*/) {
    if (closed<"add">(*this)) return {};
    if (documentType != core::FusionDesignDocumentType) {
        fail(core::BadApiCallError, "Documents::add: only designs can be created");
        return {};
    }
    return ApplicationObject::current()->openInHost(emptyDesign());
}

void DocumentsObject::add(const core::Ptr<core::Document>& document) {
    if (document && std::find(all_.begin(), all_.end(), document) == all_.end()) {
        all_ = open();
        all_.push_back(document);
    }
}

void DocumentsObject::own(const core::Ptr<core::Document>& document) {
    owned_.push_back(document);
    add(document);
}

void DocumentsObject::dispose() {
    for (const core::Ptr<core::Document>& each : owned_) {
        endDocument(each);
    }
    owned_.clear();
    all_.clear();
    invalidate();
}

std::vector<core::Ptr<core::Document>> DocumentsObject::open() const {
    std::vector<core::Ptr<core::Document>> result;
    std::copy_if(all_.begin(), all_.end(), std::back_inserter(result),
                 [](const core::Ptr<core::Document>& each) { return each->isValid(); });
    return result;
}

}  // namespace host
