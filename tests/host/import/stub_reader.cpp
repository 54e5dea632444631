#include "tests/host/import/stub_reader.h"
#include "host/import/child_program.h"

#include <charconv>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <string>
#include <thread>
#include <vector>

/// What a watched program may do, from answering to growing without end: its first argument says
/// which of it.
namespace {

void echo(const std::string& /*unused*/) {
    for (std::string line; std::getline(std::cin, line);) {
        std::cout << line << std::endl;
    }
}

void sleepFor(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }

void inPieces(const std::string& /*unused*/) {
    std::cout << "on" << std::flush;
    sleepFor(std::chrono::milliseconds(100));
    std::cout << "e\ntwo\n" << std::flush;
}

void say(const std::string& text) { std::cout << text << std::endl; }

void end(const std::string& status) { stub_reader::endAtOnce(std::atoi(status.c_str())); }

void hang(const std::string& /*unused*/) { sleepFor(std::chrono::minutes(1)); }

void rubbish(const std::string& /*unused*/) {
    for (;;) {
        std::cout << '\0' << std::flush;
    }
}

void grow(const std::string& /*unused*/) {
    constexpr std::size_t kStep = std::size_t{1} << 20;
    std::vector<char*> taken;
    for (;;) {
        taken.push_back(static_cast<char*>(std::malloc(kStep)));
        if (taken.back() != nullptr) {
            std::memset(taken.back(), 1, kStep);
        }
        sleepFor(std::chrono::milliseconds(1));
    }
}

/// Starts another that hangs, says which, and waits.
void startAnother(const std::string& self) {
    constexpr std::size_t kMegabytes = 1000;
    host::ChildProgram other(self, {"say-id-and-hang"}, kMegabytes);
    std::string id;
    while (id.find('\n') == std::string::npos && other.receive(id, std::chrono::seconds(1))) {
    }
    std::cout << id << std::flush;
    hang({});
}

void sayIdAndHang(const std::string& /*unused*/) {
    std::cout << stub_reader::processId() << std::endl;
    hang({});
}

}  // namespace

int main(int count, char** arguments) {
    static const std::map<std::string, void (*)(const std::string&)> kTasks = {
        {"echo", echo},
        {"in-pieces", inPieces},
        {"say", say},
        {"crash", [](const std::string& /*unused*/) { stub_reader::crash(); }},
        {"end", end},
        {"hang", hang},
        {"rubbish", rubbish},
        {"grow", grow},
        {"files", [](const std::string& which) { say(stub_reader::openFiles(which)); }},
        {"start-another", startAnother},
        {"say-id-and-hang", sayIdAndHang}};
    stub_reader::useBinaryStreams();
    if (count < 2 || !kTasks.contains(arguments[1])) {
        std::cerr << "usage: stub_reader TASK [WHAT]\n";
        return EXIT_FAILURE;
    }
    kTasks.at(arguments[1])(count > 2 ? arguments[2] : "");
}
