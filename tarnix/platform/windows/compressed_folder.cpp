#include "tarnix/platform/compressed_folder.h"

#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>
#include <shldisp.h>

#include <cstdio>

namespace tarnix::platform {
namespace {

struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};

template <class Interface>
using Object = std::unique_ptr<Interface, ReleaseObject>;

/// A variant with a path in it.
class PathVariant {
public:
    explicit PathVariant(const std::string& path) {
        ::VariantInit(&variant_);
        const std::wstring wide = fromCodePage(path);
        variant_.vt = VT_BSTR;
        variant_.bstrVal = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    }
    PathVariant(const PathVariant&) = delete;
    PathVariant& operator=(const PathVariant&) = delete;
    ~PathVariant() { ::VariantClear(&variant_); }

    [[nodiscard]] const VARIANT& get() const { return variant_; }

private:
    VARIANT variant_ = {};
};

/// The Shell's object for programs; null where there is none.
Object<IShellDispatch> shellApplication() {
    constexpr CLSID kShellApplication = {
        0x13709620, 0xC279, 0x11CE, {0xA4, 0x9E, 0x44, 0x45, 0x53, 0x54, 0x00, 0x00}};
    constexpr IID kShellDispatch = {
        0xD8F015C0, 0xC278, 0x11CE, {0xA4, 0x9E, 0x44, 0x45, 0x53, 0x54, 0x00, 0x00}};
    void* object = nullptr;
    if (FAILED(::CoCreateInstance(kShellApplication, nullptr, CLSCTX_INPROC_SERVER, kShellDispatch,
                                  &object))) {
        return nullptr;
    }
    return Object<IShellDispatch>(static_cast<IShellDispatch*>(object));
}

}  // namespace

bool writeBytes(const std::string& path, std::span<const std::uint8_t> bytes) {
    std::FILE* const file = ::_wfopen(fromCodePage(path).c_str(), L"wb");
    if (file == nullptr) {
        return false;
    }
    const bool isWritten = std::fwrite(bytes.data(), bytes.size(), 1, file) == 1;
    return std::fclose(file) == 0 && isWritten;
}

/// Released in the reverse order of its members: the folder before the Shell's object.
struct CompressedFolder::State {
    Object<IShellDispatch> shell;
    Object<Folder> folder;
};

CompressedFolder::CompressedFolder(const std::string& archivePath) {
    Object<IShellDispatch> shell = shellApplication();
    if (!shell) {
        return;
    }
    const PathVariant path(archivePath);
    Folder* folder = nullptr;
    // The Shell also reports success where it knows no folder of that name.
    if (SUCCEEDED(shell->NameSpace(path.get(), &folder)) && folder != nullptr) {
        state_ = std::make_unique<State>(State{std::move(shell), Object<Folder>(folder)});
    }
}

CompressedFolder::~CompressedFolder() = default;

void CompressedFolder::copyHere(const std::string& folder) const {
    // No progress dialog (4), yes to all (16), no question about new folders (512), no message
    // about errors (1024).
    constexpr LONG kQuietly = 1556;
    const PathVariant source(folder);
    VARIANT options = {};
    ::VariantInit(&options);
    options.vt = VT_I4;
    options.lVal = kQuietly;
    // The outcome is not reported.
    static_cast<void>(state_->folder->CopyHere(source.get(), options));
}

}  // namespace tarnix::platform
