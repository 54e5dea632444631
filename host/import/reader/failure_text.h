#pragma once

#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>

#include <exception>
#include <new>
#include <stdexcept>
#include <string>

namespace step {

/// Thrown where the time for something is over.
class TookTooLong : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Why something failed.
struct Failure {
    std::string text;        ///< empty where nothing failed
    bool isByLimit = false;  ///< of time or memory: the same may succeed another time
};

/// Does what may fail, in Open CASCADE or in the standard library.
template <class Work>
Failure failureIn(const Work& work) {
    try {
        work();
        return {};
    } catch (const std::bad_alloc&) {
        return {.text = "needs more memory than it may use", .isByLimit = true};
    } catch (const Standard_OutOfMemory&) {
        return {.text = "needs more memory than it may use", .isByLimit = true};
    } catch (const TookTooLong& failure) {
        return {.text = failure.what(), .isByLimit = true};
    } catch (const Standard_Failure& failure) {
        const std::string text = failure.GetMessageString();
        return {.text = text.empty() ? failure.DynamicType()->Name() : text};
    } catch (const std::exception& failure) {
        return {.text = failure.what()};
    }
}

}  // namespace step
