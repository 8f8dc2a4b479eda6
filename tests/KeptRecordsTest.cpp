#include "millichart.h"
#include "support/SomeRecords.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>

using namespace millichart;
using penlode::CBinarySerialize;
using penlode::CJsonSerializeStream;

namespace {

/// A record as the first version wrote it on both paths, in data/records, and what it holds. Its files are
/// never written again: a change of the code that no longer loads them breaks the documents of users.
struct KeptRecord {
    std::string Name;
    std::function<std::string()> Binary;
    std::function<std::string()> Json;
    std::function<void(const std::string& bytes)> ExpectInBinary;
    std::function<void(const std::string& text)> ExpectInJson;
    std::function<bool(const std::string& bytes)> FailsInBinary;
};

/// The operations are those of the record's serializer, the keyed one under a tag.
template <class Prop>
KeptRecord Kept(const char* name, const Prop& prop, void (*positional)(penlode::ISerialize&, Prop&),
                void (*keyed)(penlode::CSerializeStream&, Prop&, const char*)) {
    const auto save = [prop](auto stream, const auto& serialize) {
        Prop saved = prop;
        serialize(stream, saved);
        return stream;
    };
    const auto expect = [prop](auto& stream, const auto& serialize) {
        Prop loaded;
        serialize(stream, loaded);
        EXPECT_EQ(loaded, prop);
    };
    const auto withTag = [keyed](penlode::CSerializeStream& stream, Prop& value) {
        keyed(stream, value, "property");
    };
    return {name,
            [=] { return save(CBinarySerialize(), positional).Bytes(); },
            [=] { return save(CJsonSerializeStream(), withTag).Text(); },
            [=](const std::string& bytes) {
                CBinarySerialize stream(bytes);
                expect(stream, positional);
                EXPECT_FALSE(stream.Failed());
                EXPECT_EQ(stream.Remaining(), 0U);
            },
            [=](const std::string& text) {
                CJsonSerializeStream stream(text);
                expect(stream, withTag);
                EXPECT_TRUE(stream.Problems().empty());
                EXPECT_TRUE(stream.UnknownKeys().empty());
            },
            [=](const std::string& bytes) {
                CBinarySerialize stream(bytes);
                Prop loaded;
                positional(stream, loaded);
                return stream.Failed();
            }};
}

/// Its serializer gives it the tag.
void SerializeCaption(penlode::CSerializeStream& stream, CaptionProp& prop, const char*) {
    CCaptionPropSerialize::SerializeCaptionProp(stream, prop);
}

const KeptRecord kKept[] = {
    Kept("TextProperty", SomeCaption().CaptionTextProperty, CTextPropertySerialize::SerializeTextProperty,
         CTextPropertySerialize::SerializeTextProperty),
    Kept("CaptionProp", SomeCaption(), CCaptionPropSerialize::SerializeCaptionProp, SerializeCaption),
    Kept("LegendProp", SomeLegend(), CLegendPropSerialize::SerializeLegendProp,
         CLegendPropSerialize::SerializeLegendProp),
    Kept("PieProp", SomePie(), CPiePropSerialize::SerializePieProp, CPiePropSerialize::SerializePieProp),
    Kept("HalfPieProp", SomeHalf(), CHalfPiePropSerialize::SerializeHalfPieProp,
         CHalfPiePropSerialize::SerializeHalfPieProp),
    Kept("HalfPieHalfPieProp", HalfPieHalfPieProp{SomeHalf(), {}},
         CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp,
         CHalfPieHalfPiePropSerialize::SerializeHalfPieHalfPieProp),
    Kept("HalfPieHistogramProp", HalfPieHistogramProp{SomeHistogram(), SomeHalf()},
         CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp,
         CHalfPieHistogramPropSerialize::SerializeHalfPieHistogramProp),
    Kept("HistogramProp", SomeHistogram(), CHistogramPropSerialize::SerializeHistogramProp,
         CHistogramPropSerialize::SerializeHistogramProp),
    Kept("CurveProp", SomeCurves(), CCurvePropSerialize::SerializeCurveProp,
         CCurvePropSerialize::SerializeCurveProp),
};

std::ostream& operator<<(std::ostream& stream, const KeptRecord& record) {
    return stream << record.Name;
}

/// Writes a file that is not there yet, of a new record, when it is asked for.
void WriteIfNew(const std::string& path, const std::function<std::string()>& bytes) {
    if (std::getenv("MILLICHART_KEEP_RECORDS") != nullptr && !std::filesystem::exists(path)) {
        std::ofstream(path, std::ios::binary) << bytes();
    }
}

void ExpectKept(const std::string& path, const std::function<void(const std::string& bytes)>& expect) {
    std::ifstream file(path, std::ios::binary);
    ASSERT_TRUE(file) << path << " is missing; with MILLICHART_KEEP_RECORDS=1 this test writes it";
    expect({std::istreambuf_iterator<char>(file), {}});
}

class KeptRecords : public testing::TestWithParam<KeptRecord> {};

} // namespace

TEST_P(KeptRecords, StillLoad) {
    const KeptRecord& record = GetParam();
    const std::string path = MILLICHART_RECORDS "/" + record.Name;
    WriteIfNew(path + ".bin", record.Binary);
    WriteIfNew(path + ".json", record.Json);
    ExpectKept(path + ".bin", record.ExpectInBinary);
    ExpectKept(path + ".json", record.ExpectInJson);
}

TEST_P(KeptRecords, ComeBackOnBothPaths) {
    GetParam().ExpectInBinary(GetParam().Binary());
    GetParam().ExpectInJson(GetParam().Json());
}

TEST_P(KeptRecords, FailWhereTheyAreCutOff) {
    const std::string whole = GetParam().Binary();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_TRUE(GetParam().FailsInBinary(whole.substr(0, length))) << length;
    }
}

INSTANTIATE_TEST_SUITE_P(All, KeptRecords, testing::ValuesIn(kKept),
                         [](const auto& test) { return test.param.Name; });
