#pragma once

namespace bench {

/// What a process takes.
struct ProcessCost {
    double Milliseconds; ///< of the processor, the least of several runs
    double Bytes;        ///< the most memory that was in use at once, the least of several runs
};

/// From a file of rows, each a time and a value, to a picture of 1600 × 1200 pixels; costs of 0 where a
/// process failed.
struct ProcessCosts {
    ProcessCost Million; ///< the command, on so many rows
    ProcessCost Thousand;
    ProcessCost Parsing; ///< of a million rows by hand, without a picture
    ProcessCost Json;    ///< the command, on a document that holds a million rows
};

/// One line of many points, from a host's lists to a picture of 1600 × 1200 pixels; costs of 0 where a
/// process failed.
struct PointCosts {
    ProcessCost Few;      ///< a thousand points
    ProcessCost Borrowed; ///< 1e7, in lists that the host keeps
    ProcessCost Handed;
    ProcessCost Most; ///< 1e8, handed over
};

/// To be called before this process takes much memory itself: the system counts it as the new process's.
ProcessCosts MeasureProcesses();

PointCosts MeasureManyPoints();

} // namespace bench
