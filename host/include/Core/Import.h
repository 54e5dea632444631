#pragma once

#include <Core/Base.h>

#include <string>

/// Importing files of other formats.
namespace adsk::core {

class Document;

/// What to import. The class of the options determines the format, whatever the file is called.
class ImportOptions : public Base {
public:
    static const char* classType();  ///< "adsk::core::ImportOptions"

    /// The full path of the file, as it was set.
    [[nodiscard]] virtual std::string filename() const = 0;
    /// Not checked before the import.
    virtual bool filename(const std::string& value) = 0;
};

/// For an IGES file.
class IGESImportOptions : public ImportOptions {
public:
    static const char* classType();  ///< "adsk::core::IGESImportOptions"
};

/// For an archive of the host itself; the stand-in reads its design files in their place.
class FusionArchiveImportOptions : public ImportOptions {
public:
    static const char* classType();  ///< "adsk::core::FusionArchiveImportOptions"
};

/// For an ACIS SAT file, which the stand-in has no translator for.
class SATImportOptions : public ImportOptions {
public:
    static const char* classType();  ///< "adsk::core::SATImportOptions"
};

/// For a ShapeManager SMT file, which the stand-in has no translator for.
class SMTImportOptions : public ImportOptions {
public:
    static const char* classType();  ///< "adsk::core::SMTImportOptions"
};

/// For a STEP file.
class STEPImportOptions : public ImportOptions {
public:
    static const char* classType();  ///< "adsk::core::STEPImportOptions"
};

/// Imports files. The functions that create options do not check the file, and return null only
/// when they fail.
class ImportManager : public Base {
public:
    static const char* classType();  ///< "adsk::core::ImportManager"

    /// Options for an IGES file.
    virtual Ptr<IGESImportOptions> createIGESImportOptions(const std::string& filename) = 0;
    /// Options for an archive of the host.
    virtual Ptr<FusionArchiveImportOptions> createFusionArchiveImportOptions(
        const std::string& filename) = 0;
    /// Options for a SAT file.
    virtual Ptr<SATImportOptions> createSATImportOptions(const std::string& filename) = 0;
    /// Options for an SMT file.
    virtual Ptr<SMTImportOptions> createSMTImportOptions(const std::string& filename) = 0;
    /// Options for a STEP file.
    virtual Ptr<STEPImportOptions> createSTEPImportOptions(const std::string& filename) = 0;

    /// Opens the file as a new document and makes it the active one. Null for null options, a file
    /// that is missing or cannot be read, and a format without a translator.
    virtual Ptr<Document> importToNewDocument(const Ptr<ImportOptions>& importOptions) = 0;
};

}  // namespace adsk::core
