#include "tarnix/platform/process_function.h"

#include <windows.h>

namespace tarnix::platform {
namespace {

void* functionOf(HMODULE module, const char* name) {
    if (module == nullptr) {
        return nullptr;
    }
    return reinterpret_cast<void*>(::GetProcAddress(module, name));
}

}  // namespace

void* processFunction(const char* name) {
    void* const ofProgram = functionOf(::GetModuleHandleW(nullptr), name);
    return ofProgram != nullptr ? ofProgram
                                : functionOf(::GetModuleHandleW(L"standinhost.dll"), name);
}

}  // namespace tarnix::platform
