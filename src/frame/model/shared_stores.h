#pragma once
// The stores that the tools share between their windows: the global units,
// the minor loss sums of each line and the current network line, the last
// physical properties fetched and whether that fetch was cancelled, and the
// roughness the pipe tool chose.

namespace kestrova {

// Every shared store as the program starts, before a tool reads it.
void resetSharedStores();

} // namespace kestrova
