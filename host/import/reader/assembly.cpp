#include "host/import/reader/assembly.h"

#include "host/import/reader/material_warnings.h"
#include "host/import/reader/products.h"
#include "host/import/reader/protocol.h"
#include "host/import/reader/referenced_file.h"
#include "host/import/reader/tree_check.h"

#include <STEPConstruct_ExternRefs.hxx>
#include <XSControl_WorkSession.hxx>

#include <map>
#include <utility>

namespace step {
namespace {

namespace fs = std::filesystem;

/// Reads files one inside the other; each once, however often it is referred to.
class AssemblyReader {
public:
    AssemblyReader(Assembly& assembly, fs::path folder)
        : assembly_(assembly), folder_(std::move(folder)) {}

    /// The roots of a file.
    std::vector<std::size_t> read(const fs::path& path) {
        if (const auto known = roots_.find(path); known != roots_.end()) {
            return known->second;
        }
        sendStage("Reading");
        auto file = std::make_unique<StepFile>(path);
        sendStage("Resolving");
        for (const Warning& warning : file->warnings) {
            warn(path, warning);
        }
        assembly_.files.push_back(std::move(file));
        const std::size_t number = assembly_.files.size() - 1;
        const std::size_t first = assembly_.components.size();
        std::vector<std::size_t> roots = addProducts(assembly_);
        if (assembly_.components.size() == first) {
            throw ReadError(
                "holds no product; export it as an assembly or a part (AP203, AP214 "
                "or AP242)");
        }
        roots_[path] = roots;
        fillFromOthers(number, first);
        return roots;
    }

private:
    void warn(const fs::path& path, Warning warning) {
        if (!assembly_.files.empty() && path != assembly_.files.front()->path) {
            warning.text.insert(0, path.filename().string() + " ");
        }
        assembly_.warnings.push_back(std::move(warning));
    }

    void fillFromOthers(std::size_t number, std::size_t first) {
        STEPConstruct_ExternRefs references(assembly_.files[number]->reader.WS());
        references.LoadExternRefs();
        const std::size_t end = assembly_.components.size();
        for (int at = 1; at <= references.NbExternRefs(); ++at) {
            const Handle(StepBasic_ProductDefinition) owner = references.ProdDef(at);
            const char* const name = references.FileName(at);
            for (std::size_t index = first; index < end && name != nullptr; ++index) {
                if (!owner.IsNull() && assembly_.components[index].definition == owner &&
                    isUnfilled(assembly_.components[index]) && *name != '\0') {
                    fill(index, assembly_.files[number]->path, name);
                }
            }
        }
    }

    /// Whether what a product consists of may be in another file. Where it is in this one, the
    /// file that the product refers to is a document: often the native file it was modelled in.
    static bool isUnfilled(const Component& component) {
        return component.uses.empty() && component.bodies.empty() && !component.content;
    }

    void fill(std::size_t index, const fs::path& referring, const std::string& name) {
        const auto found = findReferenced(folderOf(referring), name);
        if (!found) {
            const std::string& component = assembly_.components[index].name;
            warn(referring, {.code = "missing-file",
                             .text = "refers to the file \"" + name + "\", which is missing; \"" +
                                     component + "\" stays empty",
                             .component = component});
            return;
        }
        try {
            const std::vector<std::size_t> roots = read(*found);
            put(roots, index);
        } catch (const ReadError& error) {
            const std::string& component = assembly_.components[index].name;
            warn(*found, {.code = "unreadable-file",
                          .text = std::string(error.what()) + "; \"" + component + "\" stays empty",
                          .component = component});
        }
    }

    /// The first file may be a copy, which is elsewhere than what it refers to.
    [[nodiscard]] fs::path folderOf(const fs::path& file) const {
        return file == assembly_.files.front()->path ? folder_ : file.parent_path();
    }

    /// A single root takes the place of the component; several are below it.
    void put(const std::vector<std::size_t>& roots, std::size_t index) {
        if (roots.size() == 1) {
            assembly_.components[index].content = roots.front();
            return;
        }
        for (const std::size_t root : roots) {
            assembly_.components[index].uses.push_back({root, nullptr, {}});
        }
    }

    Assembly& assembly_;
    fs::path folder_;  ///< of what the first file refers to
    std::map<fs::path, std::vector<std::size_t>> roots_;
};

/// What fills a component becomes its own, so that the tree is plain from here on.
class ContentTaker {
public:
    explicit ContentTaker(Assembly& assembly)
        : assembly_(assembly), states_(assembly.components.size(), State::Untouched) {}

    void run() {
        for (std::size_t index = 0; index < states_.size(); ++index) {
            take(index);
        }
    }

private:
    enum class State { Untouched, Open, Done };

    void take(std::size_t index) {
        if (states_[index] == State::Open) {
            throw ReadError("refers to a file that refers back to it; such a loop has no end");
        }
        if (states_[index] == State::Done) {
            return;
        }
        states_[index] = State::Open;
        Component& component = assembly_.components[index];
        if (component.content) {
            take(*component.content);
            add(component, assembly_.components[*component.content]);
        }
        states_[index] = State::Done;
    }

    static void add(Component& component, const Component& filling) {
        component.uses.insert(component.uses.end(), filling.uses.begin(), filling.uses.end());
        if (!component.material) {
            component.material = filling.material;
        }
        if (component.description.empty()) {
            component.description = filling.description;
        }
    }

    Assembly& assembly_;
    std::vector<State> states_;
};

}  // namespace

Assembly readAssembly(const fs::path& file, const fs::path& folder,
                      const host::ReadingLimits& limits) {
    Assembly assembly;
    assembly.roots = AssemblyReader(assembly, folder).read(file);
    ContentTaker(assembly).run();
    warnOfDensities(assembly);
    checkTree(assembly, limits);
    return assembly;
}

}  // namespace step
