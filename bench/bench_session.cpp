#include "bench/bench_session.h"

#include <cstddef>

namespace bench {

host::SessionOptions addinOptions() {
    host::SessionOptions options;
    options.addin = ADDIN_FOLDER;
    return options;
}

void start(host::Session& session, Shape shape, const benchmark::State& state) {
    session.openDesign(makeDesign(shape, static_cast<std::size_t>(state.range(0))));
    session.run();
}

}  // namespace bench
