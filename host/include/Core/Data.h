#pragma once

#include <Core/Collection.h>
#include <Core/Enums.h>

#include <string>

/// What the user keeps in the host's storage: projects, with folders and files in them.
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
    static const char* classType();

    /// The project that the user works in, null without one.
    [[nodiscard]] virtual Ptr<DataProject> activeProject() const = 0;
    virtual bool activeProject(const Ptr<DataProject>& value) = 0;
};

/// A project.
class DataProject : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string id() const = 0;

    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    /// The folder that holds all others of the project.
    [[nodiscard]] virtual Ptr<DataFolder> rootFolder() const = 0;
};

/// A folder of a project.
class DataFolder : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    /// Whether this is a project's root folder.
    [[nodiscard]] virtual bool isRoot() const = 0;

    /// The folder that this one lies in, null for a root folder.
    [[nodiscard]] virtual Ptr<DataFolder> parentFolder() const = 0;

    /// The folders directly in this one.
    [[nodiscard]] virtual Ptr<DataFolders> dataFolders() const = 0;

    /// The files directly in this one.
    [[nodiscard]] virtual Ptr<DataFiles> dataFiles() const = 0;

    /// Begins to upload a file of the local disk into this folder and returns at once.
    virtual Ptr<DataFileFuture> uploadFile(const std::string& filename) = 0;
};

/// Some folders.
class DataFolders : public CollectionOf<DataFolder> {
public:
    static const char* classType();
};

/// A file of a project.
class DataFile : public Base {
public:
    static const char* classType();

    /// A text that no other file has and that stays the same through all versions.
    [[nodiscard]] virtual std::string id() const = 0;

    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    [[nodiscard]] virtual Ptr<DataFolder> parentFolder() const = 0;
    [[nodiscard]] virtual Ptr<DataProject> parentProject() const = 0;
};

/// Some files.
class DataFiles : public CollectionOf<DataFile> {
public:
    static const char* classType();
};

/// An upload on its way.
class DataFileFuture : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual UploadStates uploadState() const = 0;

    /// The uploaded file, null until the upload has finished and after it has failed.
    [[nodiscard]] virtual Ptr<DataFile> dataFile() const = 0;
};

}  // namespace adsk::core
