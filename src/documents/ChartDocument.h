#pragma once

#include "charts/curve/BasicCurve.h"
#include "charts/histogram/BasicHistogram.h"
#include "charts/pie/BasicHalfPie.h"
#include "charts/pie/BasicHalfPieHalfPie.h"
#include "charts/pie/BasicHalfPieHistogram.h"
#include "charts/pie/BasicPie.h"
#include "documents/ChartContent.h"
#include "documents/Files.h"
#include "documents/large/LargeRows.h"
#include "documents/tables/TableInput.h"
#include "foundation/ChartPart.h"
#include "penlode/streams/Diagnostic.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace millichart {

/// What a document shall hold at a place, whatever its text has there. Keys and indexes are joined by "/";
/// the value is JSON, or else a text. Both are UTF-8.
///
///     {"property/PieBasicProp/FixedWidth", "40"}, {"property/PieBasicProp/ComponentColor/0", "#CC3333"}
struct Setting {
    std::string Place;
    std::string Value;
};

/// Is it that group, or a place in it?
bool IsPlaceIn(std::string_view place, std::string_view group);

/// A chart as its document has it laid out.
struct LaidOutChart {
    std::variant<std::monostate, CBasicPie, CBasicHalfPie, CBasicHalfPieHalfPie, CBasicHalfPieHistogram,
                 CBasicHistogram, CBasicCurve>
        Chart;
    /// Why it cannot be drawn, or what was hardly meant.
    std::vector<penlode::Diagnostic> Diagnostics;
    /// Of a table that is too large to be held; else there are none.
    LargeRows Rows = {};

    /// In mm, where the document's location puts it; empty when there is no chart.
    penlode::RectF Extent() const;
    /// The same with the texts that reach out of it.
    penlode::RectF InkExtent() const;
    /// The same with all that reaches out by less than a millimetre, which a page's margin holds elsewhere:
    /// texts, half a marker or a line's width.
    penlode::RectF FullExtent() const;
    /// The texts as they would be drawn now, in their order.
    void VisitTexts(const TextVisitor& visit) const;
    /// The part at a point of the page, in mm, or of several the one that is drawn last; where there is none,
    /// the nearest within `reach` mm. Nothing beside the chart.
    std::optional<PlacedPart> HitTest(penlode::PointF point, float reach = kUsualReach) const;
    /// All parts that can be seen, in the order in which they are drawn; of a curve, the curve and not its
    /// points.
    void VisitParts(const PartVisitor& visit) const;
    /// Before it is drawn, what is too large to be held: takes the rows of it that this engine shows, under
    /// its present transform. Tells what is wrong.
    std::vector<penlode::Diagnostic> TakeRows(const penlode::IGraphicsEngine& engine);
    void Draw(penlode::IGraphicsEngine& engine) const;
};

/// A chart document in the format of docs/document-format.md: a value that is loaded, changed at will, laid
/// out and saved.
///
///     ChartDocument document = ChartDocument::Load("sales.chart.json");
///     if (auto* pie = std::get_if<PieDocument>(&document.Content)) {
///         pie->Data.Values.front() = 50.0;
///     }
///     document.LayOut().Draw(engine);
///     document.Save("sales.chart.json");
///
/// A document that is saved holds what it held when it was loaded, unknown keys and the order of keys
/// included, but for what was changed since. Data of a table stay there, and the document goes on naming it,
/// until they are changed.
class ChartDocument {
public:
    /// An empty one, of no kind. A new one of a kind: NewDocument.h
    ChartDocument() = default;

    /// Whatever is wrong with it is among the diagnostics, a file that cannot be read too.
    static ChartDocument Load(const std::string& file);

    /// `text` is UTF-8. A table that the document names is looked for beside `file`; without one, in the
    /// current folder. `table` takes the place of the document's own data, names included.
    static ChartDocument FromText(std::string text, const std::string& file = {},
                                  std::optional<TableInput> table = std::nullopt);

    /// The same of a text that was read, or could not be. Settings count as its text's own, without a line;
    /// one of an unknown place is an error.
    static ChartDocument FromInput(InputText input, std::optional<TableInput> table = std::nullopt,
                                   const std::vector<Setting>& settings = {});

    std::string Title; ///< UTF-8, like the description and the source
    std::string Description;
    std::string Source;
    penlode::PointF Location; ///< mm
    ChartOptions Options;     ///< what the chart does beyond its record, so that it reads well
    ChartContent Content;     ///< none when the kind was not told

    /// Of the load, in the document's order, notes last: there is a note for each key that is missing.
    const std::vector<penlode::Diagnostic>& Diagnostics() const;
    /// Was there no error in the load? A document with errors has defaults in the place of what is wrong.
    bool IsSound() const;
    /// The tables that were read.
    const std::vector<std::string>& DataFiles() const;
    /// Sorts into the document's order what several of its loads, layouts and readers found, and gives what
    /// has no file its name and the lines of their places.
    void PutInOrder(std::vector<penlode::Diagnostic>& diagnostics) const;

    /// Its diagnostics have their files and lines, in the document's order. The second one takes content and
    /// text out of the document, which keeps its kind and cannot be saved afterwards; this spares a copy of
    /// large data.
    LaidOutChart LayOut() const&;
    LaidOutChart LayOut() &&;

    /// From now on its text has the data themselves, where it named a table until now: for a document that
    /// goes where the table is not found.
    void HoldData() { m_hasOtherData = true; }

    /// Sizes the plot, of pies the circle, so that the whole figure, texts included, is so large, in mm. A
    /// bar or line chart fills it in both directions, to a tenth of a millimetre, and gaps between groups
    /// shrink with the plot; of pies and what is composed of them one direction is filled, and their parts
    /// keep their proportions. Where a name is wrapped or left out, and the figure jumps with it, it is the
    /// next smaller. False, and the document is as it was, when this cannot be: there is nothing to
    /// draw, the texts leave no room for a plot of 5 mm, or one of them is longer than the figure by itself.
    bool FitTo(penlode::SizeF figure);

    /// What is saved; of a document that cannot be saved, what was loaded, or nothing once that was taken.
    std::string Text() const;
    /// Writes it aside and then gives it the file's name, so that a failure leaves what was there before.
    /// Gives the reason of one, as in "cannot be written: No space left on device", or an empty text. A
    /// document that could not be read, one whose content was taken out and a name that the format cannot
    /// hold are such reasons too: then nothing is written.
    std::string Save(const std::string& file) const;

private:
    struct Loaded;

    const Loaded& AsLoaded() const;
    LaidOutChart LayOutAndSpend();
    std::string SavedText(std::string& fault) const;

    std::shared_ptr<const Loaded> m_loaded;
    std::shared_ptr<const std::string> m_text; ///< that it was loaded from
    bool m_isSpent = false;                    ///< its content went into a layout
    bool m_hasOtherData = false;               ///< than those that its text tells of
};

bool HasErrors(const std::vector<penlode::Diagnostic>& diagnostics);

} // namespace millichart
