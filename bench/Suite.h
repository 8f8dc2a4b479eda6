#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// What is measured: pairs of ways to the same result, one of which is to take no longer than a multiple of
/// the other.
namespace bench {

/// Makes a picture or a document and gives its size in bytes.
using Way = std::function<std::size_t()>;

struct Comparison {
    std::string Name;
    std::string Measured; ///< names of ways
    std::string Reference;
    double Bound; ///< of the time of the one, in times of the other
};

struct NamedWay {
    std::string Name;
    Way Run;
};

struct Suite {
    std::vector<NamedWay> Ways;
    std::vector<Comparison> Comparisons;

    /// A way may stand in several comparisons.
    void Add(std::string name, Way way) { Ways.push_back({std::move(name), std::move(way)}); }

    void Compare(std::string name, std::string measured, std::string reference, double bound) {
        Comparisons.push_back({std::move(name), std::move(measured), std::move(reference), bound});
    }
};

void AddLineCases(Suite& suite);
void AddPieCases(Suite& suite);
void AddCurveCases(Suite& suite);

} // namespace bench
