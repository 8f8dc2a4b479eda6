#include "millichart.h"
#include "support/KeptFiles.h"
#include "support/SomeRecords.h"

#include <gtest/gtest.h>

using namespace millichart;
using penlode::CBinarySerialize;
using penlode::CJsonSerializeStream;

namespace {

constexpr const char* kTag = "property";

template <class Prop, class Serialize> std::string KeyedText(const Prop& prop, const Serialize& serialize) {
    Prop saved = prop;
    CJsonSerializeStream stream;
    serialize(stream, saved, kTag);
    EXPECT_EQ(saved, prop) << "saving changes nothing";
    return stream.Text();
}

template <class Prop, class Serialize>
void ExpectInBinary(const std::string& name, const Prop& prop, const Serialize& serialize) {
    Prop saved = prop;
    CBinarySerialize out;
    serialize(out, saved);
    EXPECT_EQ(saved, prop) << "saving changes nothing";
    const std::string bytes = Kept(name + ".bin", out.Bytes());
    EXPECT_TRUE(out.Bytes() == bytes);

    CBinarySerialize in(bytes);
    Prop loaded;
    serialize(in, loaded);
    EXPECT_EQ(loaded, prop);
    EXPECT_FALSE(in.Failed());
    EXPECT_EQ(in.Remaining(), 0U);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        CBinarySerialize cutOff(bytes.substr(0, length));
        serialize(cutOff, loaded);
        EXPECT_TRUE(cutOff.Failed()) << length;
    }
}

template <class Prop, class Serialize>
void ExpectInJson(const std::string& name, const Prop& prop, const Serialize& serialize) {
    const std::string now = KeyedText(prop, serialize);
    const std::string text = Kept(name + ".json", now);
    EXPECT_EQ(now, text);

    CJsonSerializeStream in(text);
    Prop loaded;
    serialize(in, loaded, kTag);
    EXPECT_EQ(loaded, prop);
    EXPECT_TRUE(in.Problems().empty());
    EXPECT_TRUE(in.UnknownKeys().empty());
}

/// What is missing takes the defaults of loading, which differ from those of construction, whatever the
/// record held before.
template <class Prop, class Serialize>
void ExpectDefaults(const std::string& name, const Prop& prop, const Serialize& serialize) {
    for (const char* nothing : {"{}", R"({"property": "a text where a group belongs"})", "{\"property\": "}) {
        CJsonSerializeStream stream(nothing);
        Prop loaded = prop;
        serialize(stream, loaded, kTag);
        const std::string now = KeyedText(loaded, serialize);
        EXPECT_EQ(now, Kept(name + ".defaults.json", now));
    }
}

/// Holds a record against its files in data/records, as the first version wrote them on both paths. They are
/// never written again: a change of the code that no longer loads them breaks the documents of users.
template <class Prop, class Serialize>
void ExpectKept(const char* name, const Prop& prop, const Serialize& serialize) {
    SCOPED_TRACE(name);
    const std::string path = std::string("records/") + name;
    ExpectInBinary(path, prop, serialize);
    ExpectInJson(path, prop, serialize);
    ExpectDefaults(path, prop, serialize);
}

} // namespace

TEST(KeptRecords, AreSavedAndLoadedAsEver) {
    ExpectKept("TextProperty", SomeCaption().CaptionTextProperty, [](auto& s, auto& p, auto... tag) {
        CTextPropertySerialize::SerializeTextProperty(s, p, tag...);
    });
    // Its serializer gives it the tag.
    ExpectKept("CaptionProp", SomeCaption(),
               [](auto& s, auto& p, auto...) { CCaptionPropSerialize::SerializeCaptionProp(s, p); });
    ExpectKept("LegendProp", SomeLegend(), [](auto& s, auto& p, auto... tag) {
        CLegendPropSerialize::SerializeLegendProp(s, p, tag...);
    });
    ExpectKept("PieProp", SomePie(),
               [](auto& s, auto& p, auto... tag) { CPiePropSerialize::SerializePieProp(s, p, tag...); });
    ExpectKept("HalfPieProp", SomeHalf(), [](auto& s, auto& p, auto... tag) {
        CHalfPiePropSerialize::SerializeHalfPieProp(s, p, tag...);
    });
    ExpectKept("HalfPieHalfPieProp", HalfPieHalfPieProp{SomeHalf(), {}}, [](auto& s, auto& p, auto... tag) {
        CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp(s, p, tag...);
    });
    ExpectKept("HalfPieHistogramProp", HalfPieHistogramProp{SomeHistogram(), SomeHalf()},
               [](auto& s, auto& p, auto... tag) {
                   CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp(s, p, tag...);
               });
    ExpectKept("HistogramProp", SomeHistogram(), [](auto& s, auto& p, auto... tag) {
        CHistogramPropSerialize::SerializeHistogramProp(s, p, tag...);
    });
    ExpectKept("ChartOptions", SomeOptions(), [](auto& s, auto& p, auto... tag) {
        CChartOptionsSerialize::SerializeChartOptions(s, p, tag...);
    });
    ExpectKept("CurveProp", SomeCurves(),
               [](auto& s, auto& p, auto... tag) { CCurvePropSerialize::SerializeCurveProp(s, p, tag...); });
}
