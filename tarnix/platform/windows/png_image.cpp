#include "tarnix/platform/windows/png_image.h"

#include <objidl.h>

// What the headers of GDI+ take for granted.
#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>

#include <optional>
#include <vector>

namespace tarnix::platform {
namespace {

namespace flat = Gdiplus::DllExports;

/// All images of the process, and GDI+ while it runs for them.
struct Shared {
    int images = 0;
    ULONG_PTR token = 0;
};

Shared& shared() {
    static Shared instance;
    return instance;
}

bool startGraphics() {
    if (shared().token == 0) {
        const Gdiplus::GdiplusStartupInput input;
        if (Gdiplus::GdiplusStartup(&shared().token, &input, nullptr) != Gdiplus::Ok) {
            shared().token = 0;
        }
    }
    return shared().token != 0;
}

/// The encoder for PNG.
std::optional<CLSID> pngEncoder() {
    constexpr GUID kPng = {
        0xB96B3CAF, 0x0728, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    UINT count = 0;
    UINT bytes = 0;
    if (flat::GdipGetImageEncodersSize(&count, &bytes) != Gdiplus::Ok || bytes == 0) {
        return std::nullopt;
    }
    // The list is followed by the strings that it points to.
    std::vector<Gdiplus::ImageCodecInfo> codecs(bytes / sizeof(Gdiplus::ImageCodecInfo) + 1);
    if (flat::GdipGetImageEncoders(count, bytes, codecs.data()) != Gdiplus::Ok) {
        return std::nullopt;
    }
    for (UINT i = 0; i < count; ++i) {
        if (::IsEqualGUID(codecs[i].FormatID, kPng) != FALSE) {
            return codecs[i].Clsid;
        }
    }
    return std::nullopt;
}

}  // namespace

PngImage::PngImage() { ++shared().images; }

PngImage::~PngImage() {
    if (--shared().images == 0 && shared().token != 0) {
        Gdiplus::GdiplusShutdown(shared().token);
        shared().token = 0;
    }
}

void PngImage::save(const std::wstring& path) {
    DIBSECTION header = {};
    if (::GetObjectW(bitmap_, sizeof(header), &header) == 0 || !startGraphics()) {
        return;
    }
    const std::optional<CLSID> encoder = pngEncoder();
    Gdiplus::GpBitmap* picture = nullptr;
    if (encoder && flat::GdipCreateBitmapFromHBITMAP(bitmap_, nullptr, &picture) == Gdiplus::Ok) {
        // Whether the file could be written is not reported.
        static_cast<void>(flat::GdipSaveImageToFile(picture, path.c_str(), &*encoder, nullptr));
        flat::GdipDisposeImage(picture);
    }
}

}  // namespace tarnix::platform
