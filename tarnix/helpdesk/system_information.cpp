#include "tarnix/helpdesk/system_information.h"

#include "tarnix/helpdesk/support_folder.h"
#include "tarnix/platform/processor.h"
#include "tarnix/platform/text_file.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarnix {
namespace {

platform::TextFile file;

/// Writes the sixteen bytes of a leaf to `place`, the lowest byte of each register first.
void appendRegisters(const platform::ProcessorRegisters& registers, char* place) {
    for (const std::uint32_t value : registers) {
        for (int shift = 0; shift < 32; shift += 8) {
            *place++ = static_cast<char>((value >> shift) & 0xFF);
        }
    }
}

}  // namespace

std::string processorBrand() {
    constexpr std::uint32_t kFirstExtended = 0x80000000;
    constexpr std::uint32_t kFirstOfName = 0x80000002;
    constexpr std::uint32_t kLastOfName = 0x80000004;
    constexpr std::size_t kLeafBytes = 16;
    std::array<char, 64> name = {};
    const std::uint32_t highest = platform::processorInformation(kFirstExtended)[0];
    // The leaves after the name are not needed.
    for (std::uint32_t leaf = kFirstExtended; leaf <= highest && leaf <= kLastOfName; ++leaf) {
        const platform::ProcessorRegisters registers = platform::processorInformation(leaf);
        if (leaf >= kFirstOfName) {
            appendRegisters(registers, name.data() + (leaf - kFirstOfName) * kLeafBytes);
        }
    }
    return name.data();
}

void writeSystemInfo() {
    ensureHelpdeskFolder();
    // The folder of the module's start, and not the one that was just made sure of.
    file.open(helpdeskFolderAtLoad + "SystemInfo.txt");
    const std::string brand = processorBrand();
    file.write("Hardware information: \n");
    file.write("  CPU : \n");
    file.write("    " + brand + "\n");
    const unsigned cores = platform::processorCount();
    const std::uint64_t mebibytes = platform::memorySize() >> 20;
    file.write("  RAM : \n");
    file.write("    Number of Cores : " + std::to_string(cores) + "\n");
    file.write("    Total System Memory: " + std::to_string(mebibytes) + "MB\n");
    file.close();
}

}  // namespace tarnix
