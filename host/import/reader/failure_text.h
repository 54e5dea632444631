#pragma once

#include <Standard_Failure.hxx>

#include <exception>
#include <string>

namespace step {

/// Does what may fail, in Open CASCADE or in the standard library; returns why it failed, or an
/// empty string.
template <class Work>
std::string failureOf(const Work& work) {
    try {
        work();
        return {};
    } catch (const Standard_Failure& failure) {
        const std::string text = failure.GetMessageString();
        return text.empty() ? failure.DynamicType()->Name() : text;
    } catch (const std::exception& failure) {
        return failure.what();
    }
}

}  // namespace step
