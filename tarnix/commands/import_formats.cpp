#include "tarnix/commands/import_formats.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace tarnix {
namespace {

using namespace adsk::core;

/// Extensions that share a factory.
struct ImportFormat {
    std::vector<std::string_view> extensions;
    ImportOptionsFactory factory;
};

using Manager = Ptr<ImportManager>;
using Options = Ptr<ImportOptions>;

const std::array<ImportFormat, 5>& importFormats() {
    static const std::array<ImportFormat, 5> formats = {{
        {.extensions = {"igs", "iges", "ige"},
         .factory = [](const Manager& manager, const std::string& file) -> Options {
             return manager->createIGESImportOptions(file);
         }},
        {.extensions = {"f3d"},
         .factory = [](const Manager& manager, const std::string& file) -> Options {
             return manager->createFusionArchiveImportOptions(file);
         }},
        {.extensions = {"sab", "sat"},
         .factory = [](const Manager& manager, const std::string& file) -> Options {
             return manager->createSATImportOptions(file);
         }},
        {.extensions = {"smb", "smt"},
         .factory = [](const Manager& manager, const std::string& file) -> Options {
             return manager->createSMTImportOptions(file);
         }},
        {.extensions = {"stp", "step", "ste"},
         .factory = [](const Manager& manager, const std::string& file) -> Options {
             return manager->createSTEPImportOptions(file);
         }},
    }};
    return formats;
}

}  // namespace

const char* const supportedFilesFilter =
    "Supported Files(*.wire; *.dwg; *.f3d; *.f2d; *.cam360; *.iam; *.ipt; *.CATProduct; "
    "*.CATPart; *.dxf; *.fbx; *.igs; *.ige; *.iges; *.prt; *.obj; *.x_b; *.x_t; *.prt; "
    "*.asm; *.g; *.neu; *.3dm; *.sat; *.smb; *.smt; *.sab; *.asm; *.sldprt; *.sldasm; *.prt; "
    "*.step; *.stp; *.ste; *.stl; *.sku);;"
    " Alias files(*.wire);;"
    "AutoCAD DWG files(*.dwg);;"
    "Autodesk Fusion 360 files(*.f3d);;"
    "Autodesk Fusion 360 Drawing files(*.f2d);;"
    "Autodesk Fusion 360 Toolpath files(*.cam360);;"
    "Autodesk Inventor files(*.iam; *.ipt);;"
    " Catia V5 files(*.CATProduct; *.CATPart);;"
    "DXF files(*.dxf);;"
    "FBX files(*.fbx);;"
    "IGES files(*.iges; *.ige; *.igs);;"
    "NX files(*.prt);;"
    "OBJ files(*.obj);;"
    "Parasolid Binary files(*.x_b);;"
    "Parasolid Text files(*.x_t);;"
    "Pro / ENGINEER and Creo Parametric files(*.asm; *.prt);;"
    "Pro / ENGINEER Granite files(*.g);;"
    "Pro / ENGINEER Neutral files(*.neu);;"
    "Rhino files(*.3dm);;"
    "SAT / SMT files(*.sab; *.sat; *.smb; *.smt);;"
    "SolidWorks files(*.prt; *.asm; *.sldprt; *.sldasm);;"
    "STEP files(*.ste; *.step; *.stp);;"
    "STL files(*.stl);;"
    " SketchUp files(*.sku);;"
    "All Files(*.*)";

ImportOptionsFactory importOptionsFactory(const std::string& extension) {
    for (const ImportFormat& format : importFormats()) {
        const auto& all = format.extensions;
        if (std::find(all.begin(), all.end(), extension) != all.end()) {
            return format.factory;
        }
    }
    return nullptr;
}

std::string extensionOf(const std::string& fileName) {
    return fileName.substr(fileName.rfind('.') + 1);
}

}  // namespace tarnix
