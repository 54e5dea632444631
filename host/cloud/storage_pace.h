#pragma once

namespace host {

/// How long the user's storage takes for what a module uploads, by the clock of the host, and what
/// goes wrong there. By default nothing takes time and all goes well.
struct StoragePace {
    double uploadSeconds = 0;
    bool uploadFails = false;  ///< at the end of that time

    /// From the end of an upload until the file can be opened.
    double conversionSeconds = 0;

    int conversionsReturningNothing = 0;  ///< so many tries to open a file return null
    int conversionsThrowing = 0;          ///< so many tries, before those, throw an exception
};

/// How the storage of the host that lives behaves; to be changed by the code that started it.
/// Throws a `MisuseError` without a host.
StoragePace& storagePace();

}  // namespace host
