#pragma once

#include <Core/Collection.h>
#include <Core/Enums.h>

#include <string>

/// The user's storage: projects, with folders and files in them.
namespace adsk::core {

class DataFile;
class DataFileFuture;
class DataFiles;
class DataFolder;
class DataFolders;
class DataProject;

/// The user's projects.
class Data : public Base {
public:
    static const char* classType();  ///< "adsk::core::Data"

    /// The project that the user works in; null when the user has none.
    [[nodiscard]] virtual Ptr<DataProject> activeProject() const = 0;
    /// False for null and for a project that is not one of the user's.
    virtual bool activeProject(const Ptr<DataProject>& value) = 0;
};

/// A project.
class DataProject : public Base {
public:
    static const char* classType();  ///< "adsk::core::DataProject"

    /// Unique among the user's projects.
    [[nodiscard]] virtual std::string id() const = 0;

    /// The name as the user sees it.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Renames the project; its id stays. False for an empty name, for one that a file system
    /// cannot have, and for one that is in use.
    virtual bool name(const std::string& value) = 0;

    /// The folder that holds all others of the project; never null.
    [[nodiscard]] virtual Ptr<DataFolder> rootFolder() const = 0;
};

/// A folder of a project.
class DataFolder : public Base {
public:
    static const char* classType();  ///< "adsk::core::DataFolder"

    /// The name as the user sees it; that of a root folder is its project's.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Renames the folder; that of a root folder renames its project. False as `DataProject::name`.
    virtual bool name(const std::string& value) = 0;

    /// Whether this is the root folder of its project.
    [[nodiscard]] virtual bool isRoot() const = 0;

    /// The folder that contains this one, null for a root folder.
    [[nodiscard]] virtual Ptr<DataFolder> parentFolder() const = 0;

    /// The folders directly in this one, by name, as they are now; never null.
    [[nodiscard]] virtual Ptr<DataFolders> dataFolders() const = 0;

    /// The files directly in this one, by name, as they are now; never null. Folders are not among
    /// them.
    [[nodiscard]] virtual Ptr<DataFiles> dataFiles() const = 0;

    /// Starts to upload a local file, given by its full path, into this folder and returns at once.
    /// Never null: a file that is missing or not accepted fails in the result's `uploadState`.
    virtual Ptr<DataFileFuture> uploadFile(const std::string& filename) = 0;
};

/// A list of folders; it does not change when folders are added later.
class DataFolders : public CollectionOf<DataFolder> {
public:
    static const char* classType();  ///< "adsk::core::DataFolders"
};

/// A file of a project.
class DataFile : public Base {
public:
    static const char* classType();  ///< "adsk::core::DataFile"

    /// Unique among all files of the user, and the same for all versions of the file.
    [[nodiscard]] virtual std::string id() const = 0;

    /// The name as the user sees it, without a file extension.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Renames the file; its id stays. False as `DataProject::name`.
    virtual bool name(const std::string& value) = 0;

    /// The folder that contains it; never null.
    [[nodiscard]] virtual Ptr<DataFolder> parentFolder() const = 0;

    /// The project that it belongs to; never null.
    [[nodiscard]] virtual Ptr<DataProject> parentProject() const = 0;
};

/// A list of files; it does not change when files are added later.
class DataFiles : public CollectionOf<DataFile> {
public:
    static const char* classType();  ///< "adsk::core::DataFiles"
};

/// An upload under way. It continues when no module holds this object any more.
class DataFileFuture : public Base {
public:
    static const char* classType();  ///< "adsk::core::DataFileFuture"

    /// How far it is. It changes only while the host works, so a caller that polls it calls
    /// `adsk::doEvents` in between.
    [[nodiscard]] virtual UploadStates uploadState() const = 0;

    /// The uploaded file; null until the upload has finished, and when it has failed.
    [[nodiscard]] virtual Ptr<DataFile> dataFile() const = 0;
};

}  // namespace adsk::core
