#pragma once

#include <windows.h>

#include <string>

namespace tarnix::platform {

/// A bitmap that can be saved as PNG through GDI+.
///
/// GDI+ is started when the first image of the process is saved, and shut down when the last image
/// that was there goes.
class PngImage {
public:
    PngImage();
    PngImage(const PngImage&) = delete;
    PngImage& operator=(const PngImage&) = delete;
    ~PngImage();

    /// Makes this the image's bitmap, which still belongs to the caller.
    void attach(HBITMAP bitmap) { bitmap_ = bitmap; }

    /// Writes the bitmap into a file; failures are not reported.
    void save(const std::wstring& path);

private:
    HBITMAP bitmap_ = nullptr;
};

}  // namespace tarnix::platform
