#pragma once

#include <Core/Base.h>

#include <string>

/// Bringing files of other formats into the host.
namespace adsk::core {

class Document;

/// What to import, and how. The class of the options tells the format.
class ImportOptions : public Base {
public:
    static const char* classType();

    /// The full name of the file.
    [[nodiscard]] virtual std::string filename() const = 0;
    virtual bool filename(const std::string& value) = 0;
};

class IGESImportOptions : public ImportOptions {
public:
    static const char* classType();
};

class FusionArchiveImportOptions : public ImportOptions {
public:
    static const char* classType();
};

class SATImportOptions : public ImportOptions {
public:
    static const char* classType();
};

class SMTImportOptions : public ImportOptions {
public:
    static const char* classType();
};

class STEPImportOptions : public ImportOptions {
public:
    static const char* classType();
};

/// Imports files. The options are null where they cannot be made.
class ImportManager : public Base {
public:
    static const char* classType();

    virtual Ptr<IGESImportOptions> createIGESImportOptions(const std::string& filename) = 0;
    virtual Ptr<FusionArchiveImportOptions> createFusionArchiveImportOptions(
        const std::string& filename) = 0;
    virtual Ptr<SATImportOptions> createSATImportOptions(const std::string& filename) = 0;
    virtual Ptr<SMTImportOptions> createSMTImportOptions(const std::string& filename) = 0;
    virtual Ptr<STEPImportOptions> createSTEPImportOptions(const std::string& filename) = 0;

    /// Opens what the options name as a new document; null where that fails.
    virtual Ptr<Document> importToNewDocument(const Ptr<ImportOptions>& importOptions) = 0;
};

}  // namespace adsk::core
