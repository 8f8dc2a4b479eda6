#include "penlode/streams/BinarySerialize.h"

#include "penlode/Owned.h"

#include <bit>
#include <gtest/gtest.h>

namespace penlode {
namespace {

using namespace std::string_literals;

const std::string kHeader = "MCPS\x01\0\0\0"s;

/// One value of each kind, in one routine for both directions.
struct Sample {
    Color Ink{0x80336699U};
    std::string Text = "a\0b"s;
    float Length = 1.5F;
    std::int32_t Count = -2;
    std::vector<std::string> Names{"A", "", "BC"};
    Owned<Font> Face{Font{L"宋体", 4.0F, FontStyle::Bold}};
    Owned<Pen> Line{Pen(kWhite, 0.1F, DashStyle::Dot)};
    Owned<Pen> NoLine;

    friend bool operator==(const Sample&, const Sample&) = default;
};

template <class Value> void Field(ISerialize& stream, Value& value) {
    if (stream.IsSaving()) {
        stream.Write(value);
    } else {
        stream.Read(value);
    }
}

template <class Object> void Field(ISerialize& stream, Owned<Object>& owned) {
    LendToStream(owned, stream.IsSaving(), [&stream](Object** object) {
        if (stream.IsSaving()) {
            stream.Write(*object);
        } else {
            stream.Read(object);
        }
    });
}

void Serialize(ISerialize& stream, Sample& sample) {
    Field(stream, sample.Ink);
    Field(stream, sample.Text);
    Field(stream, sample.Length);
    Field(stream, sample.Count);
    Field(stream, sample.Names);
    Field(stream, sample.Face);
    Field(stream, sample.Line);
    Field(stream, sample.NoLine);
}

std::string Saved(Sample sample) {
    CBinarySerialize stream;
    Serialize(stream, sample);
    return stream.Bytes();
}

Diagnostic ProblemOf(const CBinarySerialize& stream) {
    return stream.Problem().value_or(Diagnostic{});
}

Diagnostic Unreadable(const char* place, const char* found, const char* expected) {
    return StreamProblem(DiagnosticKind::Unreadable, place, found, expected);
}

TEST(BinarySerialize, BytesAreAsDocumented) {
    const std::string expected = kHeader + "\x99\x66\x33\x80"
                                           "\x03\0\0\0"
                                           "a\0b"
                                           "\0\0\xC0\x3F"
                                           "\xFE\xFF\xFF\xFF"
                                           "\x03\0\0\0"
                                           "\x01\0\0\0"
                                           "A"
                                           "\0\0\0\0"
                                           "\x02\0\0\0"
                                           "BC"
                                           "\x01"
                                           "\x04\0\0\0\xCB\xCE\xCC\xE5"
                                           "\0\0\x80\x40"
                                           "\x01\0\0\0"
                                           "\x01"
                                           "\xFF\xFF\xFF\xFF"
                                           "\xCD\xCC\xCC\x3D"
                                           "\x02\0\0\0"
                                           "\0"s;
    EXPECT_EQ(Saved({}), expected);
}

TEST(BinarySerialize, RoundTrip) {
    Sample loaded{kBlack, "old", 0.0F, 0, {"old"}, {}, {}, Owned<Pen>(Pen())};
    CBinarySerialize stream(Saved({}));
    Serialize(stream, loaded);
    EXPECT_EQ(loaded, Sample{});
    EXPECT_FALSE(stream.Failed());
    EXPECT_EQ(stream.Remaining(), 0U);
}

TEST(BinarySerialize, FloatsKeepEveryBit) {
    for (const std::uint32_t bits : {0x7FC12345U, 0xFF800000U, 0x80000000U, 0x00000001U}) {
        const Font font{L"x", std::bit_cast<float>(bits), 0x1234};
        CBinarySerialize saving;
        saving.Write(&font);
        CBinarySerialize loading(saving.Bytes());
        Font* read = nullptr;
        loading.Read(&read);
        const Owned<Font> owner = read != nullptr ? Owned<Font>(*read) : Owned<Font>();
        delete read;
        ASSERT_TRUE(owner);
        EXPECT_EQ(std::bit_cast<std::uint32_t>(owner->Size), bits);
        EXPECT_EQ(owner->Style, 0x1234);
    }
}

/// Whatever was read before the cut is the sample's, whatever comes after it is untouched.
TEST(BinarySerialize, TruncationAtEveryByteFailsAndLeavesTheRestAlone) {
    const std::string whole = Saved({});
    const Sample old{kBlack, "old", 0.0F, 7, {"old"}, {}, {}, {}};
    for (std::size_t size = 0; size < whole.size(); ++size) {
        CBinarySerialize stream(std::string_view(whole).substr(0, size));
        Sample loaded = old;
        Serialize(stream, loaded);
        EXPECT_TRUE(stream.Failed()) << size;
        EXPECT_TRUE(loaded.Names == old.Names || loaded.Names == Sample{}.Names) << size;
        EXPECT_TRUE(loaded.Text == old.Text || loaded.Text == Sample{}.Text) << size;
        EXPECT_EQ(loaded.Ink, size < 12 ? old.Ink : Sample{}.Ink) << size;
        EXPECT_EQ(loaded.Count, size < 27 ? old.Count : Sample{}.Count) << size;
        EXPECT_EQ(static_cast<bool>(loaded.Face), size >= 63) << size;
        EXPECT_EQ(static_cast<bool>(loaded.Line), size >= 76) << size;
    }
}

TEST(BinarySerialize, HeadersOfOtherStreamsAreRefused) {
    EXPECT_EQ(ProblemOf(CBinarySerialize("")),
              Unreadable("byte 0", "the end after 0 bytes", "\"MCPS\" of 4 bytes"));
    EXPECT_EQ(ProblemOf(CBinarySerialize("PK\x03\x04rest")),
              Unreadable("byte 0", "bytes 50 4B 03 04", "\"MCPS\""));
    EXPECT_EQ(ProblemOf(CBinarySerialize("MCPS\x01\0"s)),
              Unreadable("byte 4", "the end after 2 bytes", "a version of 4 bytes"));
    CBinarySerialize newer("MCPS\x02\0\0\0\x01\0\0\0"s);
    EXPECT_EQ(ProblemOf(newer), Unreadable("byte 4", "version 2", "version 1"));
    std::int32_t value = 7;
    newer.Read(value);
    EXPECT_EQ(value, 7);
}

TEST(BinarySerialize, LengthsBeyondTheBytesThatAreLeft) {
    std::string text = "old";
    CBinarySerialize texts(kHeader + "\xFF\xFF\xFF\xFFxy");
    texts.Read(text);
    EXPECT_EQ(ProblemOf(texts),
              Unreadable("byte 8", "a length of 4294967295", "a text whose length is at most 2"));
    EXPECT_EQ(text, "old");

    std::vector<std::string> list{"old"};
    CBinarySerialize lists(kHeader + "\x03\0\0\0\0\0\0\0\0\0\0\0"s);
    lists.Read(list);
    EXPECT_EQ(ProblemOf(lists), Unreadable("byte 8", "a length of 3", "a list whose length is at most 2"));
    EXPECT_EQ(list, std::vector<std::string>{"old"});
    EXPECT_EQ(lists.Remaining(), 12U);
}

TEST(BinarySerialize, BytesThatMeanNoObject) {
    Pen* pen = nullptr;
    CBinarySerialize flag(kHeader + "\x02");
    flag.Read(&pen);
    EXPECT_EQ(ProblemOf(flag), Unreadable("byte 8", "2", "0 for nothing or 1 for an object"));

    CBinarySerialize dash(kHeader + "\x01\0\0\0\xFF\0\0\0\0\x06\0\0\0"s);
    dash.Read(&pen);
    EXPECT_EQ(ProblemOf(dash), Unreadable("byte 17", "6", "a dash style from 0 to 5"));
    EXPECT_EQ(pen, nullptr);
}

TEST(BinarySerialize, TheFirstProblemStays) {
    std::int32_t value = 7;
    CBinarySerialize stream(kHeader + "\x01");
    stream.Read(value);
    const Diagnostic first = ProblemOf(stream);
    EXPECT_EQ(first, Unreadable("byte 8", "the end after 1 byte", "a whole number of 4 bytes"));
    Font* font = nullptr;
    stream.Read(&font);
    EXPECT_EQ(font, nullptr);
    EXPECT_EQ(ProblemOf(stream), first);
}

TEST(BinarySerialize, AgainstItsDirection) {
    Sample sample;
    CBinarySerialize loading(kHeader);
    loading.Write(sample.Text);
    loading.Write(sample.Names);
    loading.Write(sample.Face.Get());
    EXPECT_EQ(loading.Bytes(), kHeader);
    EXPECT_FALSE(loading.Failed());

    CBinarySerialize saving;
    saving.Read(sample.Count);
    EXPECT_EQ(sample, Sample{});
    EXPECT_EQ(ProblemOf(saving), Unreadable("byte 8", "a stream that is saving", "a stream that is loading"));
}

} // namespace
} // namespace penlode
