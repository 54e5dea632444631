#include "parts/glb_packing.h"

#include <stdexcept>

namespace parts {
namespace {

[[noreturn]] void refuse() {
    throw std::logic_error("this build has no library that compresses models");
}

}  // namespace

bool canPack() { return false; }

PackedSurface packSurface(const std::vector<float>& /*points*/,
                          const std::vector<float>& /*normals*/,
                          const std::vector<std::uint32_t>& /*indices*/) {
    refuse();
}

std::string packAttributes(const std::string& /*elements*/, std::size_t /*stride*/) { refuse(); }

std::string packTriangles(std::span<const std::uint32_t> /*indices*/) { refuse(); }

std::string packIndices(std::span<const std::uint32_t> /*indices*/) { refuse(); }

}  // namespace parts
