#pragma once

#include "data/ChartData.h"
#include "documents/ChartStream.h"
#include "documents/Json.h"
#include "foundation/ChartText.h"
#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"

#include <memory>
#include <span>

namespace cli {

/// A chart as the command needs it, whatever its kind. Laid out as it was loaded.
class Chart {
public:
    virtual ~Chart() = default;
    virtual penlode::RectF Extent() const = 0;
    /// With the texts that reach out of it.
    virtual penlode::RectF InkExtent() const = 0;
    /// The texts that Draw would draw.
    virtual void VisitTexts(const millichart::TextVisitor& visit) const = 0;
    virtual void Draw(penlode::IGraphicsEngine& engine) const = 0;
    /// The results of its layout, in the chart's own millimetres.
    virtual Json Layout() const = 0;
    /// What can be drawn but was hardly meant, as sentences with their places.
    virtual std::vector<Message> Doubts() const = 0;

    /// What is told when its extent is empty: what it lacks, and where that should stand.
    virtual Message Emptiness() const {
        return {"", Severity::Error, 0, "data", "nothing to draw", "values, and a size above 0"};
    }
};

/// What a kind of chart gives the command. Nothing else in the command names a kind.
struct ChartKind {
    const char* Name; ///< as documents and `new` call it
    std::unique_ptr<Chart> (*Load)(ChartStream& stream, const DataSource& source);
    /// A complete document of this kind that draws well as it stands, but for its version and kind.
    Json (*Example)();
};

std::span<const ChartKind> ChartKinds();

/// Null when there is no such kind.
const ChartKind* FindChartKind(const std::string& name);

/// All kinds, for messages: "pie", "curve"
std::string ChartKindNames();

} // namespace cli
