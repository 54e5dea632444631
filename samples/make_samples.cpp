#include "samples/samples.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

/// make_samples FOLDER: writes the samples as STEP files into a folder.
int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: make_samples FOLDER\n";
        return EXIT_FAILURE;
    }
    for (const samples::Sample& sample : samples::allSamples()) {
        const std::filesystem::path path = std::filesystem::path(arguments[1]) / sample.file;
        if (!(std::ofstream(path, std::ios::binary) << sample.text << std::flush)) {
            std::cerr << path.string() << ": cannot be written\n";
            return EXIT_FAILURE;
        }
        std::cout << path.string() << '\n';
    }
    return EXIT_SUCCESS;
}
