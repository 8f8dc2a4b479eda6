#pragma once

#include <cmath>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// What is measured: pairs of ways to the same result, one of which is to take no longer than a multiple of
/// the other.
namespace bench {

/// Makes a picture or a document and gives its size in bytes.
using Way = std::function<std::size_t()>;

/// What a way finds when it starts: memory that earlier runs have used and freed, or none but what the system
/// has still to clear, as in a process that draws its first picture.
enum class Memory { Kept, New };

struct NamedWay {
    std::string Name;
    std::function<Way()> Prepare; ///< makes what the next run takes; its time does not count
    std::size_t Parts = 1;        ///< the time told is that of one of so many equal parts
    bench::Memory Memory = bench::Memory::Kept;
};

struct Comparison {
    std::string Name;
    std::string Measured; ///< names of ways
    std::string Reference;
    double Bound; ///< of the time of the one, in times of the other
};

struct Suite {
    std::vector<NamedWay> Ways;
    std::vector<Comparison> Comparisons;

    /// A way may stand in several comparisons.
    void Add(std::string name, Way way) {
        AddPrepared(std::move(name), [way = std::move(way)] { return way; });
    }

    /// `prepare` gives a way that runs once.
    void AddPrepared(std::string name, std::function<Way()> prepare, std::size_t parts = 1) {
        Ways.push_back({std::move(name), std::move(prepare), parts});
    }

    void Compare(std::string name, std::string measured, std::string reference, double bound) {
        Comparisons.push_back({std::move(name), std::move(measured), std::move(reference), bound});
    }
};

/// Millimetres by which a picture stands elsewhere in its next run, 0 to 1: nothing that was drawn lies where
/// the run before had it.
inline double NextShift() {
    static int run = 0;
    return std::fmod(++run * 0.6180339887, 1.0);
}

void AddLineCases(Suite& suite);
void AddLayoutCases(Suite& suite);
void AddPieCases(Suite& suite);
void AddBarCases(Suite& suite);
void AddCurveCases(Suite& suite);

} // namespace bench
