// What charts draw by their records alone is held by thousands of random ones: documents and hosts rely on
// it.
#include "foundation/NumberText.h"
#include "penlode/recording/RecordingEngine.h"
#include "penlode/text/Digits.h"
#include "penlode/text/StringUtil.h"
#include "support/KeptFiles.h"
#include "support/RandomCharts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

using namespace millichart;
using penlode::Color;
using penlode::GraphicsPath;
using penlode::PointF;
using penlode::RecordedCall;
using penlode::RectF;

namespace {

constexpr std::uint32_t kCharts = 2000;
constexpr std::uint32_t kBatch = 50;

/// How far two sums of a batch's coordinates may be apart. One coordinate that moves by 0.01 mm makes at
/// least 0.005, and one whose last bit is another at most 0.0015; g++ at -O0 and -O2 and clang agree
/// to all digits, and mingw's logarithms make 0.0004 in one batch.
constexpr double kTolerance = 0.002;

/// What a batch of charts draws, in three numbers: how many calls, a hash of what must be exact (operations,
/// texts, colours, counts), and a sum of all coordinates, which may differ in their last bit.
class Fingerprint {
public:
    void Add(const std::vector<RecordedCall>& calls) {
        m_calls += calls.size();
        for (const RecordedCall& call : calls) {
            Hash(call.Operation);
            for (const RecordedCall::Argument& argument : call.Arguments) {
                std::visit(*this, argument.Held);
            }
        }
    }

    std::string Text() const {
        return std::to_string(m_calls) + " " +
               penlode::HexDigits(static_cast<std::uint32_t>(m_hash >> 32U), 8) +
               penlode::HexDigits(static_cast<std::uint32_t>(m_hash), 8) + " " + FixedText(m_sum, 4);
    }

    void operator()(std::monostate) { Hash("null"); }

    /// A whole number or an enumerator.
    template <class Whole> void operator()(const Whole& value) {
        if constexpr (std::is_class_v<Whole>) {
            ADD_FAILURE() << "a chart draws what its fingerprint does not know";
        } else {
            const auto number = static_cast<std::uint64_t>(value);
            for (std::uint32_t shift = 0; shift < 64; shift += 8) {
                Hash(number >> shift);
            }
        }
    }

    void operator()(float value) {
        ++m_index;
        if (std::abs(value) < kHuge) {
            m_sum += Weight() * static_cast<double>(value);
        } else {
            Hash(std::isnan(value) ? "nan" : value < 0.0F ? "far below" : "far above");
        }
    }

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

    void operator()(const std::wstring& text) { Hash(penlode::CStringUtil::WideToUtf8(text)); }

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
        Hash("line");
        (*this)(line.From);
        (*this)(line.To);
    }

    void operator()(const GraphicsPath::Arc& arc) {
        Hash("arc");
        (*this)(arc.Ellipse);
        (*this)(arc.StartAngle);
        (*this)(arc.SweepAngle);
    }

private:
    /// A float that is farther away, such as a value's far out of its axis's range, is too coarse for the
    /// sum.
    static constexpr float kHuge = 1e4F;

    /// FNV-1a of the lowest eight bits.
    void Hash(std::uint64_t byte) {
        constexpr std::uint64_t kPrime = 0x100000001B3U;
        m_hash = (m_hash ^ (byte & 0xFFU)) * kPrime;
    }

    void Hash(std::string_view text) {
        for (const char c : text) {
            Hash(static_cast<std::uint64_t>(c));
        }
        Hash(kTextEnd);
    }

    /// From 0.5 to 1.5, far from its neighbours', so that two numbers that change places show.
    double Weight() const {
        constexpr std::uint32_t kGoldenShare = 2654435769U; // of 2 to the 32nd
        return 0.5 + static_cast<double>(m_index * kGoldenShare) / 4294967296.0;
    }

    static constexpr std::uint64_t kTextEnd = 0xFF; ///< which no UTF-8 has

    std::size_t m_calls = 0;
    std::uint64_t m_hash = 0xCBF29CE484222325U;
    double m_sum = 0.0;
    std::uint32_t m_index = 0;
};

/// The fingerprints of batches of charts, each on a line that begins with its first seed. Every other chart
/// is a moderate one.
template <class Chart> std::string Fingerprints(Chart (*random)(std::uint32_t, Variety)) {
    std::string lines;
    for (std::uint32_t first = 0; first < kCharts; first += kBatch) {
        Fingerprint batch;
        for (std::uint32_t seed = first; seed < first + kBatch; ++seed) {
            Chart chart = random(seed, seed % 2 == 0 ? Variety::Full : Variety::Moderate);
            chart.Layout();
            penlode::CRecordingEngine engine;
            chart.Draw(&engine);
            batch.Add(engine.Calls());
            batch(chart.GetPositionAll());
        }
        lines += std::to_string(first) + ": " + batch.Text() + "\n";
    }
    return lines;
}

/// A line's sum, and what stands before it.
std::pair<std::string, double> Parted(const std::string& line) {
    const std::size_t sum = line.rfind(' ') + 1;
    return {line.substr(0, sum), penlode::NumberOf<double>(line.substr(sum)).value_or(NAN)};
}

template <class Chart> void ExpectKept(const std::string& name, Chart (*random)(std::uint32_t, Variety)) {
    const std::string drawn = Fingerprints(random);
    std::istringstream now(drawn);
    std::istringstream kept(Kept("drawings/" + name + ".txt", drawn));
    std::string line;
    std::string keptLine;
    while (std::getline(now, line)) {
        ASSERT_TRUE(std::getline(kept, keptLine)) << line << " is not kept";
        const auto [exact, sum] = Parted(line);
        const auto [keptExact, keptSum] = Parted(keptLine);
        EXPECT_TRUE(exact == keptExact && std::abs(sum - keptSum) < kTolerance)
            << "charts of the seed and the " << kBatch - 1 << " after it are drawn otherwise:\n"
            << line << " is kept as\n"
            << keptLine;
    }
    EXPECT_FALSE(std::getline(kept, keptLine)) << keptLine;
}

} // namespace

TEST(ClassicalDrawing, OfPiesStays) {
    ExpectKept("random-pies", RandomPie);
}

TEST(ClassicalDrawing, OfHalfPiesStays) {
    ExpectKept("random-half-pies", RandomHalfPie);
}

TEST(ClassicalDrawing, OfTwoHalfPiesStays) {
    ExpectKept("random-two-half-pies", RandomHalfPieHalfPie);
}

TEST(ClassicalDrawing, OfBarsOnAHalfPieStays) {
    ExpectKept("random-bars-on-a-half-pie", RandomHalfPieHistogram);
}

TEST(ClassicalDrawing, OfBarsStays) {
    ExpectKept("random-bars", RandomHistogram);
}

TEST(ClassicalDrawing, OfCurvesStays) {
    ExpectKept("random-curves", RandomCurve);
}
