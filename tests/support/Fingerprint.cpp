#include "support/Fingerprint.h"

#include "foundation/NumberText.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"
#include "support/KeptFiles.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

using penlode::GraphicsPath;
using penlode::PointF;
using penlode::RecordedCall;
using penlode::RectF;

namespace {

/// How far two sums may be apart. One coordinate that moves by 0.01 mm makes at least 0.005, and one whose
/// last bit is another at most 0.0015; of fifty charts together g++ at -O0 and -O2 and clang agree to all
/// digits, and mingw's logarithms make 0.0004.
constexpr double kTolerance = 0.002;

/// A float that is farther away, such as a value's far out of its axis's range, is too coarse for the sum.
constexpr float kHuge = 1e4F;

constexpr std::uint64_t kTextEnd = 0xFF; ///< which no UTF-8 has

/// A line's sum, and what stands before it.
std::pair<std::string, double> Parted(const std::string& line) {
    const std::size_t sum = line.rfind(' ') + 1;
    return {line.substr(0, sum), penlode::NumberOf<double>(line.substr(sum)).value_or(NAN)};
}

} // namespace

/// Takes whatever a call's arguments hold.
struct Fingerprint::Visitor {
    Fingerprint& Print;

    void operator()(std::monostate) { Print.Hash("null"); }

    /// A whole number or an enumerator.
    template <class Whole> void operator()(const Whole& value) {
        if constexpr (std::is_class_v<Whole>) {
            ADD_FAILURE() << "a chart draws what its fingerprint does not know";
        } else {
            const auto number = static_cast<std::uint64_t>(value);
            for (std::uint32_t shift = 0; shift < 64; shift += 8) {
                Print.Hash(number >> shift);
            }
        }
    }

    void operator()(float value) { Print.Sum(value); }

    void operator()(const PointF& point) {
        (*this)(point.X);
        (*this)(point.Y);
    }

    void operator()(const RectF& rect) {
        (*this)(rect.TopLeft());
        (*this)(rect.Width);
        (*this)(rect.Height);
    }

    void operator()(const std::vector<PointF>& points) {
        (*this)(points.size());
        for (const PointF& point : points) {
            (*this)(point);
        }
    }

    void operator()(const std::wstring& text) { Print.Hash(penlode::CStringUtil::WideToUtf8(text)); }

    void operator()(const penlode::Pen& pen) {
        (*this)(pen.GetColor().Argb);
        (*this)(pen.GetDashStyle());
        (*this)(pen.GetWidth());
    }

    void operator()(const penlode::SolidBrush& brush) { (*this)(brush.FillColor.Argb); }

    void operator()(const penlode::Font& font) {
        (*this)(font.Family);
        (*this)(font.Size);
        (*this)(font.Style);
    }

    void operator()(const penlode::StringFormat& format) {
        (*this)(format.Alignment);
        (*this)(format.LineAlignment);
    }

    void operator()(const GraphicsPath& path) {
        for (const GraphicsPath::Figure& figure : path.Figures()) {
            for (const GraphicsPath::Piece& piece : figure.Pieces) {
                std::visit(*this, piece);
            }
            (*this)(figure.Closed);
        }
    }

    void operator()(const GraphicsPath::Line& line) {
        Print.Hash("line");
        (*this)(line.From);
        (*this)(line.To);
    }

    void operator()(const GraphicsPath::Arc& arc) {
        Print.Hash("arc");
        (*this)(arc.Ellipse);
        (*this)(arc.StartAngle);
        (*this)(arc.SweepAngle);
    }
};

void Fingerprint::Add(const std::vector<RecordedCall>& calls) {
    m_calls += calls.size();
    for (const RecordedCall& call : calls) {
        Hash(call.Operation);
        for (const RecordedCall::Argument& argument : call.Arguments) {
            std::visit(Visitor{*this}, argument.Held);
        }
    }
}

void Fingerprint::Add(const RectF& extent) {
    Visitor{*this}(extent);
}

std::string Fingerprint::Text() const {
    return std::to_string(m_calls) + " " + penlode::HexDigits(static_cast<std::uint32_t>(m_hash >> 32U), 8) +
           penlode::HexDigits(static_cast<std::uint32_t>(m_hash), 8) + " " + millichart::FixedText(m_sum, 4);
}

void Fingerprint::Hash(std::uint64_t byte) {
    constexpr std::uint64_t kPrime = 0x100000001B3U;
    m_hash = (m_hash ^ (byte & 0xFFU)) * kPrime;
}

void Fingerprint::Hash(std::string_view text) {
    for (const char c : text) {
        Hash(static_cast<std::uint64_t>(c));
    }
    Hash(kTextEnd);
}

void Fingerprint::Sum(float value) {
    ++m_index;
    if (std::abs(value) < kHuge) {
        m_sum += Weight() * static_cast<double>(value);
    } else {
        Hash(std::isnan(value) ? "nan" : value < 0.0F ? "far below" : "far above");
    }
}

double Fingerprint::Weight() const {
    constexpr std::uint32_t kGoldenShare = 2654435769U; // of 2 to the 32nd
    return 0.5 + static_cast<double>(m_index * kGoldenShare) / 4294967296.0;
}

void ExpectKeptFingerprints(const std::string& name, const std::string& lines) {
    std::istringstream now(lines);
    std::istringstream kept(Kept("drawings/" + name + ".txt", lines));
    std::string line;
    std::string keptLine;
    while (std::getline(now, line)) {
        ASSERT_TRUE(std::getline(kept, keptLine)) << line << " is not kept";
        const auto [exact, sum] = Parted(line);
        const auto [keptExact, keptSum] = Parted(keptLine);
        EXPECT_TRUE(exact == keptExact && std::abs(sum - keptSum) < kTolerance) << "drawn otherwise:\n"
                                                                                << line << " is kept as\n"
                                                                                << keptLine;
    }
    EXPECT_FALSE(std::getline(kept, keptLine)) << keptLine;
}
