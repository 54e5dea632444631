#pragma once

#include <cstdint>

/// What a COM call returns; negative values are failures.
using HRESULT = std::int32_t;

inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);
inline constexpr HRESULT E_ACCESSDENIED = static_cast<HRESULT>(0x80070005);
inline constexpr HRESULT DISP_E_TYPEMISMATCH = static_cast<HRESULT>(0x80020005);

/// A failed call, by its result.
class _com_error {  // NOLINT(bugprone-reserved-identifier): its name on Windows
public:
    explicit _com_error(HRESULT result) noexcept : result_(result) {}
    _com_error(const _com_error&) noexcept = default;
    _com_error& operator=(const _com_error&) noexcept = default;
    virtual ~_com_error() noexcept = default;

    /// The result of the failed call.
    [[nodiscard]] HRESULT Error() const noexcept { return result_; }

private:
    HRESULT result_;
};
