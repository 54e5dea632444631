// Reads, transfers and measures a STEP file with Open CASCADE alone, in one thread.
//
//     open_cascade FILE
#include "bench/comparison/bare_open_cascade.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>

#include <exception>
#include <iostream>

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "open_cascade: expected a STEP file\n";
        return 2;
    }
    try {
        Message::DefaultMessenger()->ChangePrinters().Clear();
        std::cout << bench::bareMeasure(bench::bareRead(words[1])) << '\n';
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
