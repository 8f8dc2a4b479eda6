#pragma once

#include "Suite.h"
#include "millichart.h"

#include <array>

/// Charts as their records say, and charts that read well.
namespace bench {

struct Voice {
    std::string Name; ///< what a way's name ends with
    millichart::ChartOptions Options;
};

inline std::array<Voice, 2> Voices() {
    return {Voice{"", {}}, Voice{", readable", millichart::ChartOptions::Readable()}};
}

/// The ways of one name.
inline void CompareVoices(Suite& suite, const std::string& name, double bound = 1.3) {
    suite.Compare(name + ", readable / as recorded", name + ", readable", name, bound);
}

} // namespace bench
