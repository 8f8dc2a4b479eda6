#include "Processes.h"
#include "Suite.h"

#include <charconv>
#include <cstdint>
#include <fstream>
#include <memory>

/// A file of a million rows, each a time and a value, read at once and parsed where it lies.
namespace bench {
namespace {

std::string ReadFile(const char* name) {
    std::ifstream in(name, std::ios::binary | std::ios::ate);
    std::string text(static_cast<std::size_t>(in.tellg()), '\0');
    in.seekg(0);
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    return text;
}

std::size_t ParsedByHand() {
    const std::string text = ReadFile(kMillionRows);
    std::vector<std::int32_t> times;
    std::vector<double> values;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at < end) {
        std::int32_t time = 0;
        double value = 0.0;
        at = std::from_chars(at, end, time).ptr + 1;
        at = std::from_chars(at, end, value).ptr + 1;
        times.push_back(time);
        values.push_back(value);
    }
    return times.size() + values.size();
}

} // namespace

void AddParseCases(Suite& suite) {
    suite.Add("CSV of 1e6 rows, parsed by hand", ParsedByHand);
}

} // namespace bench
