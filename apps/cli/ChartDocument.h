#pragma once

#include "penlode/Geometry.h"
#include "penlode/IGraphicsEngine.h"
#include "penlode/StreamProblem.h"

#include <memory>
#include <string>
#include <vector>

namespace penlode {
class CJsonSerializeStream;
}

namespace cli {

/// A chart as the command needs it, whatever its kind. Laid out as it was loaded.
class Chart {
public:
    virtual ~Chart() = default;
    virtual penlode::RectF Extent() const = 0;
    virtual void Draw(penlode::IGraphicsEngine& engine) const = 0;
};

/// A chart document: the chart, and what to tell about the document that did not keep it from being loaded.
struct ChartDocument {
    std::unique_ptr<Chart> Content;
    std::string Title;                           ///< UTF-8, like the description
    std::string Description;                     ///< the document's description and its source
    std::vector<penlode::StreamProblem> Remarks; ///< keys that nothing asked for
};

/// Reads a document of the format in docs/document-format.md. Throws UserError, one line a problem, when
/// there is something in it that cannot be used.
ChartDocument LoadChartDocument(const std::string& fileName);

/// "sales.json: data/values/3: found "x", expected a number"
std::string Describe(const std::string& fileName, const penlode::StreamProblem& problem);

} // namespace cli
