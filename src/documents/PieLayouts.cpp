#include "charts/pie/HalfPiePropSerialize.h"
#include "charts/pie/PiePropSerialize.h"
#include "documents/ChartLayouts.h"
#include "documents/Fields.h"
#include "documents/Slices.h"

#include <cmath>

namespace millichart::documents {
namespace {

using penlode::PointF;

constexpr float kFullTurn = 360.0F;
/// After these a number of single precision no longer tells the slices apart.
constexpr float kManyTurns = 1e5F;

constexpr const char* kLabelOffsets = "labelOffsets";

const SlicesPlace kPie{"property/PieBasicProp", "data"};
const SlicesPlace kHalfPie{"property/HalfPieBasicProp", "data"};
const SlicesPlace kFirstHalf{"property/TopHalf/HalfPieBasicProp", "data/first"};
const SlicesPlace kSecondHalf{"property/LowerHalf/HalfPieBasicProp", "data/second"};

bool IsUpper(const HalfPieProp& prop) {
    return prop.Basic.WhichPart == HalfPiePart::Upper;
}

template <class Basic>
void SaveInGroup(SavingStream& stream, const char* group, const SlicesPlace& place, const SliceData& data,
                 const Basic& basic) {
    stream.Push(group, -1);
    SaveSlices(stream, place, data, basic.ComponentName);
    stream.Pop();
}

} // namespace

void LoadContent(ChartStream& stream, const DataSource& source, PieDocument& document) {
    CPiePropSerialize::SerializePieProp(stream, document.Prop, "property");
    document.Data = LoadSlices(stream, source);
    CheckSliceNames(kPie, document.Prop.Basic.ComponentName, *source.Diagnostics);
}

void LoadContent(ChartStream& stream, const DataSource& source, HalfPieDocument& document) {
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, document.Prop, "property");
    document.Data = LoadSlices(stream, source);
    CheckSliceNames(kHalfPie, document.Prop.Basic.ComponentName, *source.Diagnostics);
}

void LoadContent(ChartStream& stream, const DataSource& source, HalfPieHalfPieDocument& document) {
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(stream, document.Prop, "property");
    LoadHalves(stream, source, document.First, document.Second);
    CheckSliceNames(kFirstHalf, document.Prop.First.Basic.ComponentName, *source.Diagnostics);
    CheckSliceNames(kSecondHalf, document.Prop.Second.Basic.ComponentName, *source.Diagnostics);
}

void SaveContent(SavingStream& stream, PieDocument& document) {
    CPiePropSerialize::SerializePieProp(stream, document.Prop, "property");
    SaveInGroup(stream, "data", kPie, document.Data, document.Prop.Basic);
}

void SaveContent(SavingStream& stream, HalfPieDocument& document) {
    CHalfPiePropSerialize::SerializeHalfPieProp(stream, document.Prop, "property");
    SaveInGroup(stream, "data", kHalfPie, document.Data, document.Prop.Basic);
}

void SaveContent(SavingStream& stream, HalfPieHalfPieDocument& document) {
    CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(stream, document.Prop, "property");
    stream.Push("data", -1);
    stream.ReplaceTable("csv", {"first", "second"});
    SaveInGroup(stream, "first", kFirstHalf, document.First, document.Prop.First.Basic);
    SaveInGroup(stream, "second", kSecondHalf, document.Second, document.Prop.Second.Basic);
    stream.Pop();
}

void SerOffsets(penlode::CSerializeStream& stream, PieDocument& document) {
    SerPoints(stream, kLabelOffsets, document.LabelOffsets);
    SerPoint(stream, "legendOffset", document.LegendOffset);
}

void SerOffsets(penlode::CSerializeStream& stream, HalfPieDocument& document) {
    SerPoints(stream, kLabelOffsets, document.LabelOffsets);
}

void SerOffsets(penlode::CSerializeStream& stream, HalfPieHalfPieDocument& document) {
    stream.Push(kLabelOffsets, -1);
    SerPoints(stream, "first", document.FirstLabelOffsets);
    SerPoints(stream, "second", document.SecondLabelOffsets);
    stream.Pop();
}

void TakeTableNames(PieDocument& document, bool inPlaceOfOwn) {
    TakeNames(document.Prop.Basic.ComponentName, document.Data.Names, inPlaceOfOwn);
}

void TakeTableNames(HalfPieDocument& document, bool inPlaceOfOwn) {
    TakeNames(document.Prop.Basic.ComponentName, document.Data.Names, inPlaceOfOwn);
}

void TakeTableNames(HalfPieHalfPieDocument& document, bool inPlaceOfOwn) {
    TakeNames(document.Prop.First.Basic.ComponentName, document.First.Names, inPlaceOfOwn);
    TakeNames(document.Prop.Second.Basic.ComponentName, document.Second.Names, inPlaceOfOwn);
}

CBasicPie LayOutContent(PieDocument& document, LayoutTask& task) {
    PieBasicProp& basic = document.Prop.Basic;
    Slices slices(kPie, document.Data, basic, task.Open);
    CBasicPie chart;
    chart.SetPieProp(document.Prop);
    chart.SetComponentValue(document.Data.Values);
    chart.SetLocation(task.Location);
    chart.SetChildOffset(document.LabelOffsets, {document.LegendOffset});
    chart.Layout();
    slices.Doubt(chart.GetLayout().Pie.Width, task.Diagnostics);
    if (basic.StartAngle < 0.0F || basic.StartAngle >= kFullTurn) {
        task.Diagnostics.push_back(penlode::Warning(kPie.Record + "/StartAngle", NumberText(basic.StartAngle),
                                                    "an angle from 0 to below 360"));
        if (!(std::abs(basic.StartAngle) < kManyTurns)) {
            task.Diagnostics.back().Severity = penlode::Severity::Error;
        }
    }
    task.Emptiness = slices.Emptiness();
    return chart;
}

CBasicHalfPie LayOutContent(HalfPieDocument& document, LayoutTask& task) {
    Slices slices(kHalfPie, document.Data, document.Prop.Basic, task.Open);
    CBasicHalfPie chart;
    chart.SetHalfPieProp(document.Prop);
    chart.SetComponentValue(document.Data.Values);
    chart.SetLocation(task.Location);
    chart.SetChildOffset(document.LabelOffsets, {});
    chart.Layout();
    slices.Doubt(chart.GetLayout().Pie.Width, task.Diagnostics);
    task.Emptiness = slices.Emptiness();
    return chart;
}

CBasicHalfPieHalfPie LayOutContent(HalfPieHalfPieDocument& document, LayoutTask& task) {
    HalfPieHalfPieProp& prop = document.Prop;
    Slices first(kFirstHalf, document.First, prop.First.Basic, task.Open);
    Slices second(kSecondHalf, document.Second, prop.Second.Basic, task.Open);
    first.DoubtOffsets(document.FirstLabelOffsets.size(), "labelOffsets/first");
    second.DoubtOffsets(document.SecondLabelOffsets.size(), "labelOffsets/second");
    std::vector<PointF> offsets = document.FirstLabelOffsets;
    offsets.push_back(kHalvesSeparator);
    offsets.insert(offsets.end(), document.SecondLabelOffsets.begin(), document.SecondLabelOffsets.end());

    CBasicHalfPieHalfPie chart;
    chart.SetHalfPieHalfPieProp(prop);
    chart.SetComponentValue(document.First.Values, document.Second.Values);
    chart.SetLocation(task.Location);
    chart.SetChildOffset(offsets, {});
    chart.Layout();
    first.Doubt(chart.GetFirstHalf().GetLayout().Pie.Width, task.Diagnostics);
    second.Doubt(chart.GetSecondHalf().GetLayout().Pie.Width, task.Diagnostics);
    if (IsUpper(prop.First) == IsUpper(prop.Second)) {
        task.Diagnostics.push_back(penlode::Warning(
            kSecondHalf.Record + "/WhichPart", "fills the same half of the circle as TopHalf and covers it"));
    }
    task.Emptiness = first.Emptiness();
    return chart;
}

} // namespace millichart::documents
