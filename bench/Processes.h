#pragma once

namespace bench {

/// What the command takes from a file of rows to a picture of 1600 × 1200 pixels, as a process.
struct ProcessCost {
    double Milliseconds; ///< of the processor, the least of several runs
    double Bytes;        ///< the most memory that was in use at once, the least of several runs
};

/// Costs of a file of a million rows, and of one of a thousand.
struct ProcessCosts {
    ProcessCost Million;
    ProcessCost Thousand;
};

/// To be called before this process takes much memory itself: the system counts it as the new process's.
/// Leaves the large file behind, under the name below. Costs of 0 if a process failed.
ProcessCosts MeasureProcesses();

/// The file of a million rows: a time and a value each.
inline constexpr const char* kMillionRows = "bench-1e6.csv";

} // namespace bench
