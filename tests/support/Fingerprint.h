#pragma once

#include "penlode/recording/RecordingEngine.h"

#include <string>

/// What charts draw, in three numbers: how many calls, a hash of what must be exact (operations, texts,
/// colours, counts), and a sum of all coordinates, which may differ in their last bit.
class Fingerprint {
public:
    void Add(const std::vector<penlode::RecordedCall>& calls);
    void Add(const penlode::RectF& extent);

    std::string Text() const;

private:
    struct Visitor;

    /// FNV-1a of the lowest eight bits.
    void Hash(std::uint64_t byte);
    void Hash(std::string_view text);
    void Sum(float value);
    /// From 0.5 to 1.5, far from its neighbours', so that two numbers that change places show.
    double Weight() const;

    std::size_t m_calls = 0;
    std::uint64_t m_hash = 0xCBF29CE484222325U;
    double m_sum = 0.0;
    std::uint32_t m_index = 0;
};

/// Lines of "what: fingerprint" against those kept in the file `name` of data; a line that is not as kept
/// fails, and says what of it.
void ExpectKeptFingerprints(const std::string& name, const std::string& lines);
