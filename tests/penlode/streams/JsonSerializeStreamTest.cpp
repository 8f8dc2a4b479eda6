#include "penlode/streams/JsonSerializeStream.h"

#include "penlode/Owned.h"
#include "penlode/text/StringUtil.h"
#include "support/Texts.h"

#include <cmath>
#include <gtest/gtest.h>
#include <span>

namespace penlode {
namespace {

using namespace std::string_literals;
using Kind = DiagnosticKind;
using Texts = std::vector<std::string>;

/// What a stream told, but for lines and sentences.
struct Problem {
    DiagnosticKind Kind;
    std::string Place;
    std::string Found;
    std::string Expected;

    friend bool operator==(const Problem&, const Problem&) = default;
};

using Problems = std::vector<Problem>;

Problems Bare(const std::vector<Diagnostic>& diagnostics) {
    Problems problems;
    for (const Diagnostic& told : diagnostics) {
        problems.push_back({told.Kind, told.Place, told.Found, told.Expected});
    }
    return problems;
}

std::string LoadText(CSerializeStream& stream, const char* utf8Tag, const std::string& defaultValue = "-") {
    std::string value = "stale";
    stream.Ser(CStringUtil::Utf8ToAnsi(utf8Tag), value, defaultValue);
    return CStringUtil::AnsiToUtf8(value);
}

Texts LoadList(CSerializeStream& stream, const std::string& tag, const Texts& defaults = {"-"}) {
    Texts values{"stale"};
    stream.Ser(tag, values, defaults);
    return values;
}

template <class Object> Owned<Object> LoadObject(CSerializeStream& stream, const std::string& tag) {
    Object* object = nullptr;
    stream.Ser(tag, &object, Object());
    Owned<Object> owned;
    owned.Adopt(object);
    return owned;
}

std::string Nested(std::size_t levels) {
    std::string json;
    for (std::size_t i = 1; i < levels; ++i) {
        json += "{\"a\":";
    }
    return json + "{}" + std::string(levels - 1, '}');
}

/// One record with a value of each kind, in one routine for both directions.
struct Sample {
    Color Ink{0x80336699U};
    Owned<Font> Face{Font{L"宋体", 4.5F, FontStyle::Bold}};
    Owned<Pen> Line{Pen(kWhite, 0.2F, DashStyle::Dash)};
    Owned<Pen> NoLine;
    std::string Text = Narrow(L"销售 \"\\\n");
    Texts Names{"A", "", Narrow(L"乙")};

    friend bool operator==(const Sample&, const Sample&) = default;
};

void Serialize(CSerializeStream& stream, Sample& sample) {
    stream.Push("Sample", -1);
    stream.Ser("Ink", sample.Ink, kBlack);
    LendToStream(sample.Face, stream.IsSaving(),
                 [&](Font** font) { stream.Ser(Narrow(L"字体"), font, Font()); });
    LendToStream(sample.Line, stream.IsSaving(), [&](Pen** pen) { stream.Ser("Line", pen, Pen()); });
    LendToStream(sample.NoLine, stream.IsSaving(), [&](Pen** pen) { stream.Ser("NoLine", pen, Pen()); });
    stream.Ser("Text", sample.Text, "");
    stream.Ser("Names", sample.Names, {});
    stream.Pop();
}

const std::string kSampleJson = R"({
  "Sample": {
    "Ink": "#80336699",
    "字体": "宋体 4.5 bold",
    "Line": "#FFFFFFFF 0.2 dash",
    "NoLine": "none",
    "Text": "销售 \"\\\n",
    "Names": [
      "A",
      "",
      "乙"
    ]
  }
}
)";

TEST(JsonSerializeStream, SavesADocumentAndLoadsItBack) {
    CJsonSerializeStream saving;
    Sample sample;
    Serialize(saving, sample);
    EXPECT_EQ(saving.Text(), kSampleJson);

    CJsonSerializeStream loading(kSampleJson, "sample.json");
    Sample loaded{kBlack, {}, {}, Owned<Pen>(Pen()), "old", {"old"}};
    Serialize(loading, loaded);
    EXPECT_EQ(loaded, sample);
    EXPECT_EQ(Bare(loading.Problems()), Problems{});
    EXPECT_EQ(Bare(loading.UnknownKeys()), Problems{});
    EXPECT_EQ(loading.Text(), kSampleJson);
    EXPECT_EQ(loading.GetFullFileName(), "sample.json");
    EXPECT_FALSE(loading.IsSaving());
}

TEST(JsonSerializeStream, NumbersAndBooleansAreAsGoodAsTheirTexts) {
    CJsonSerializeStream stream(R"({"Values": [1, -7, 20.0, 1e3, 1e5, 0.1, -0.0, 2.5e-7, 1e300,
        18446744073709551615, 123456789012345678901234567890, true, false, "t"], "One": 1.50})");
    const Texts expected{"1",
                         "-7",
                         "20",
                         "1000",
                         "100000",
                         "0.1",
                         "-0",
                         "2.5e-07",
                         "1e+300",
                         "18446744073709551615",
                         "1.2345678901234568e+29",
                         "1",
                         "0",
                         "t"};
    EXPECT_EQ(LoadList(stream, "Values"), expected);
    EXPECT_EQ(LoadText(stream, "One"), "1.5");
    EXPECT_EQ(Bare(stream.Problems()), Problems{});
}

TEST(JsonSerializeStream, TextsKeepTheirZeroBytesAndEscapes) {
    CJsonSerializeStream stream("\xEF\xBB\xBF{\"T\": \"a\\u0000b\\u5b8b\\ud83d\\ude00\"}");
    EXPECT_EQ(LoadText(stream, "T"), "a\0b宋😀"s);
    EXPECT_EQ(Bare(stream.Problems()), Problems{});
}

TEST(JsonSerializeStream, MissingKeysYieldTheirDefaults) {
    CJsonSerializeStream stream("{}");
    EXPECT_EQ(LoadText(stream, "标题", Narrow(L"无")), "无");
    EXPECT_EQ(LoadList(stream, "Names", {"", "B"}), (Texts{"", "B"}));
    EXPECT_EQ(LoadList(stream, "None", {}), Texts{});
    EXPECT_EQ(LoadObject<Font>(stream, "Font"), Owned<Font>(Font()));
    EXPECT_FALSE(stream.Push("Group", -1));
    EXPECT_EQ(stream.GetTag(), "Group");
    EXPECT_EQ(stream.GetSize(), 0);
    EXPECT_FALSE(stream.Push("Inner", -1));
    EXPECT_EQ(LoadText(stream, "Key"), "-");
    const Problems expected{{Kind::MissingKey, "标题", "", "无"},
                            {Kind::MissingKey, "Names", "", ", B"},
                            {Kind::MissingKey, "None", "", "an empty list"},
                            {Kind::MissingKey, "Font", "", "宋体 4"},
                            {Kind::MissingKey, "Group", "", "a group"},
                            {Kind::MissingKey, "Group/Inner", "", "a group"},
                            {Kind::MissingKey, "Group/Inner/Key", "", "-"}};
    EXPECT_EQ(Bare(stream.Problems()), expected);
}

TEST(JsonSerializeStream, WrongTypesYieldDefaultsAndKeepListPositions) {
    CJsonSerializeStream stream(R"({"Group": {"Text": [1], "Null": null, "List": "A||B",
        "Mixed": ["A", null, {"x": 1}, [], 2]}, "Flat": "宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体宋体"})");
    EXPECT_TRUE(stream.Push("Group", -1));
    EXPECT_EQ(LoadText(stream, "Text"), "-");
    EXPECT_EQ(LoadText(stream, "Null"), "-");
    EXPECT_EQ(LoadList(stream, "List"), Texts{"-"});
    EXPECT_EQ(LoadList(stream, "Mixed"), (Texts{"A", "", "", "", "2"}));
    stream.Pop();
    EXPECT_FALSE(stream.Push("Flat", -1));
    std::string cut = "\"";
    for (int i = 0; i < 29; ++i) {
        cut += "宋体";
    }
    const Problems expected{{Kind::WrongType, "Group/Text", "[1]", "a text"},
                            {Kind::WrongType, "Group/Null", "null", "a text"},
                            {Kind::WrongType, "Group/List", "\"A||B\"", "a list"},
                            {Kind::WrongType, "Group/Mixed/1", "null", "a text"},
                            {Kind::WrongType, "Group/Mixed/2", "{\"x\":1}", "a text"},
                            {Kind::WrongType, "Group/Mixed/3", "[]", "a text"},
                            {Kind::WrongType, "Flat", cut + "…", "a group"}};
    EXPECT_EQ(Bare(stream.Problems()), expected);
}

TEST(JsonSerializeStream, TextsThatMeanNothingAreRefusedAsTheyAreWritten) {
    CJsonSerializeStream stream(
        R"({"Ink": "蓝", "G": {"Line": "#FF000000 0.1 wavy", "Face": 12, "List": [-1, null]}, "List": ["x"]})");
    Color ink = kWhite;
    stream.Ser("Ink", ink, Color{0x12345678U});
    EXPECT_EQ(ink, Color{0x12345678U});
    stream.Push("G", -1);
    EXPECT_EQ(LoadObject<Pen>(stream, "Line"), Owned<Pen>(Pen()));
    EXPECT_EQ(LoadObject<Font>(stream, "Face"), Owned<Font>(Font()));
    EXPECT_EQ(LoadList(stream, "List"), (Texts{"-1", ""}));
    stream.Refuse("List/0", "-1", "0 or more");
    stream.Refuse("List/1", "", "a number");
    stream.Refuse("List/2", "y", "nothing");
    stream.Pop();
    stream.Refuse("List", "x", "a number");
    const Problems expected{
        {Kind::Refused, "Ink", "\"蓝\"", "a colour such as #FF336699"},
        {Kind::Refused, "G/Line", "\"#FF000000 0.1 wavy\"", "a pen such as \"#FF000000 0.1 dash\""},
        {Kind::Refused, "G/Face", "12", "a font such as \"Arial 4 bold\""},
        {Kind::WrongType, "G/List/1", "null", "a number"},
        {Kind::Refused, "G/List/0", "-1", "0 or more"},
        {Kind::Refused, "G/List/2", "\"y\"", "nothing"},
        {Kind::Refused, "List", "\"x\"", "a number"}};
    EXPECT_EQ(Bare(stream.Problems()), expected);
}

TEST(JsonSerializeStream, ADefaultIsTakenWholeWhereItsTextSaysLess) {
    CJsonSerializeStream stream("{}");
    const Font odd{L"", 4.0F, 0x100};
    Font* font = nullptr;
    stream.Ser("F", &font, odd);
    Owned<Font> owned;
    owned.Adopt(font);
    EXPECT_EQ(owned, Owned<Font>(odd));
}

TEST(JsonSerializeStream, ProblemsAreSentencesThatCanBeShown) {
    CJsonSerializeStream stream(R"({"Ink": "red", "Ikn": 1})");
    Color ink;
    stream.Ser("Ink", ink, kBlack);
    LoadText(stream, "Title", "");
    LoadText(stream, "Unit", "mm");
    LoadList(stream, "Names", {});
    stream.Push("Pie", -1);
    std::string said;
    for (const auto& told : {stream.Problems(), stream.UnknownKeys()}) {
        for (const Diagnostic& problem : told) {
            const char* const severity = problem.Severity == Severity::Error     ? "error "
                                         : problem.Severity == Severity::Warning ? "warning "
                                                                                 : "note ";
            said += severity + problem.Place + ": " + problem.Text + "\n";
        }
    }
    EXPECT_EQ(said, "error Ink: found \"red\", expected a colour such as #FF336699\n"
                    "note Title: missing, taken as empty\n"
                    "note Unit: missing, \"mm\" is taken\n"
                    "note Names: missing, an empty list is taken\n"
                    "note Pie: missing, every key in it takes its default\n"
                    "warning Ikn: an unknown key, ignored\n");
}

struct Malformed {
    std::string Json;
    std::string Place;
    std::string Found;
    std::string Expected;
};

TEST(JsonSerializeStream, MalformedDocumentsAreOneProblemWithItsPlace) {
    const std::string end = "the end of the document";
    const Malformed cases[] = {
        {"", "line 1, column 1", end, "a value"},
        {"\xEF\xBB\xBF \n", "line 2, column 1", end, "a value"},
        {"\xEF\xBB{}", "line 1, column 2", "{", "UTF-8"},
        {"\xFF\xFE{", "line 1, column 1", "byte 0xFF", "a value"},
        {" [1]", "line 1, column 2", "[1]", "a group in braces"},
        {"\xEF\xBB\xBFnull", "line 1, column 1", "null", "a group in braces"},
        {"{", "line 1, column 2", end, "a key in double quotes"},
        {"{\"a\"", "line 1, column 5", end, "a colon after the key"},
        {"{\"a\": 1", "line 1, column 8", end, "a comma or }"},
        {"{\n  \"字\": tru\n}", "line 2, column 8", "tru", "a value"},
        {"{\"a\": NaN}", "line 1, column 7", "NaN", "a value"},
        {"{\"a\": 1,}", "line 1, column 9", "}", "a key in double quotes"},
        {"{\"a\": [1,]}", "line 1, column 10", "]", "a value"},
        {"{\"a\": [1 2]}", "line 1, column 10", "2", "a comma or ]"},
        {"{\"a\" \"b\"}", "line 1, column 6", "\"b\"", "a colon after the key"},
        {"{\"a\": 1 \"b\": 2}", "line 1, column 9", "\"b\"", "a comma or }"},
        {"{“a”: 1}", "line 1, column 2", "“", "a key in double quotes"},
        {"{'a': 1}", "line 1, column 2", "'", "a key in double quotes"},
        {"{\"a\": 1&}", "line 1, column 8", "&", "a comma or }"},
        {"{\"a\": nan}", "line 1, column 7", "nan", "a value"},
        {"{\"a\": 1 true}", "line 1, column 9", "true", "a comma or }"},
        {"{\"a\": 1\0}"s, "line 1, column 8", "U+0000", "a comma or }"},
        {"{} // end", "line 1, column 4", "/", "the end of the document"},
        {"{}\n{}", "line 2, column 1", "{", "the end of the document"},
        {"{}\0"s, "line 1, column 3", "U+0000", "the end of the document"},
        {"{\"a\":\0}"s, "line 1, column 6", "U+0000", "a value"},
        {"{\"a\": \"b\n\"}", "line 1, column 9", "a line break", "control characters written as escapes"},
        {"{\"a\": \"b", "line 1, column 9", end, "a closing quote"},
        {"{\"a\": \"\\x\"}", "line 1, column 9", "x", "one of \" \\ / b f n r t u after the backslash"},
        {"{\"a\": \"\\u12g4\"}", "line 1, column 12", "g4", "four hexadecimal digits after \\u"},
        {"{\"a\": \"\\ud800\"}", "line 1, column 14", "\"", "both halves of a surrogate pair"},
        {"{\"a\": \"\\udc00\"}", "line 1, column 13", "0", "both halves of a surrogate pair"},
        {"{\"字\": \"体\xFF\"}", "line 1, column 9", "byte 0xFF", "UTF-8"},
        {"{\"a\": -}", "line 1, column 7", "-", "a digit"},
        {"{\"a\": 1.}", "line 1, column 7", "1.", "a digit"},
        {"{\"a\": 01}", "line 1, column 7", "01", "a comma or }"},
        {"{\"a\": 0.00000001e400000000000000000000}", "line 1, column 7", "0.00000001e400000000000000000000",
         "a number of at most 1.79e308"},
        {"{\"a\": [1e-999, -]}", "line 1, column 16", "-", "a digit"},
        {std::string(20000000, '['), "line 1, column 65", "[", "at most 64 levels of nesting"},
        {"{\"a\": 1e999}", "line 1, column 7", "1e999", "a number of at most 1.79e308"},
        {Nested(65), "line 1, column 321", "{", "at most 64 levels of nesting"},
        {"{\"a\": \"[[\\\"[\", \"b\": " + std::string(64, '['), "line 1, column 84", "[",
         "at most 64 levels of nesting"},
    };
    for (const Malformed& bad : cases) {
        CJsonSerializeStream stream(bad.Json);
        EXPECT_TRUE(stream.IsUnreadable()) << bad.Json.substr(0, 100);
        stream.Push("a", -1);
        EXPECT_EQ(LoadText(stream, "a"), "-") << bad.Json;
        const std::string shown = bad.Json.substr(0, 100);
        ASSERT_EQ(stream.Problems().size(), 1U) << shown;
        const Diagnostic& problem = stream.Problems().front();
        EXPECT_EQ(problem.Kind, Kind::Unreadable) << shown;
        EXPECT_EQ(problem.Place, bad.Place) << shown;
        EXPECT_EQ(problem.Found, bad.Found) << shown;
        EXPECT_EQ(problem.Expected, bad.Expected) << shown;
        EXPECT_EQ(stream.Text(), "{}\n");
    }
}

TEST(JsonSerializeStream, SixtyFourLevelsAreNotTooDeep) {
    CJsonSerializeStream loading(Nested(64));
    EXPECT_FALSE(loading.IsUnreadable());

    CJsonSerializeStream saving;
    int depth = 0;
    while (saving.Push("a", -1)) {
        Texts list{"x"};
        saving.Ser("l", list, {});
        ASSERT_LT(++depth, 64);
    }
    EXPECT_FALSE(CJsonSerializeStream(saving.Text()).IsUnreadable());
}

TEST(JsonSerializeStream, OfADoubledKeyTheLastValueCounts) {
    CJsonSerializeStream stream(R"({"a": {"k": 1, "l": [{"k": 1, "k": {}}], "k": 2}, "b": 3})");
    EXPECT_FALSE(stream.IsUnreadable());
    const Problems expected{{Kind::Refused, "a/l/0/k", "the key again", "each key once"},
                            {Kind::Refused, "a/k", "the key again", "each key once"}};
    EXPECT_EQ(Bare(stream.Problems()), expected);
    stream.Push("a", -1);
    EXPECT_EQ(stream.GetSize(), 2);
    EXPECT_EQ(LoadText(stream, "k"), "2");
}

TEST(JsonSerializeStream, UnknownKeysAreReportedInDocumentOrder) {
    CJsonSerializeStream stream(R"({"z": 1, "G": {"a": 1, "多": {"b": 2}, "c": {"d": 3}}, "L": [4, 5],
        "N": [{"e": 6}, {"e": 7, "f": 8}], "y": []})");
    stream.Push("G", -1);
    LoadText(stream, "a");
    LoadText(stream, "c");
    stream.Pop();
    LoadList(stream, "L");
    EXPECT_TRUE(stream.Push("N", 1));
    EXPECT_EQ(LoadText(stream, "e"), "7");
    stream.Pop();
    EXPECT_TRUE(stream.Has("y"));
    EXPECT_FALSE(stream.Has("x"));
    EXPECT_TRUE(stream.IsList("y"));
    EXPECT_FALSE(stream.IsList("z"));
    EXPECT_FALSE(stream.IsList("x"));
    const Problems expected{{Kind::UnknownKey, "z", "1", ""},
                            {Kind::UnknownKey, "G/多", "{\"b\":2}", ""},
                            {Kind::UnknownKey, "N/0", "{\"e\":6}", ""},
                            {Kind::UnknownKey, "N/1/f", "8", ""},
                            {Kind::UnknownKey, "y", "[]", ""}};
    EXPECT_EQ(Bare(stream.UnknownKeys()), expected);
    stream.BeginSaving();
    std::string value;
    stream.Ser("new", value, "");
    EXPECT_EQ(Bare(stream.UnknownKeys()), expected);
}

TEST(JsonSerializeStream, IndexesChooseGroupsOfOneName) {
    CJsonSerializeStream stream(R"({"Lone": {"k": 1}, "Many": [{"k": 2}, 3]})");
    EXPECT_TRUE(stream.Push("Lone", 0));
    EXPECT_EQ(LoadText(stream, "k"), "1");
    stream.Pop();
    EXPECT_TRUE(stream.Push("Many", 0));
    EXPECT_EQ(LoadText(stream, "k"), "2");
    stream.Pop();
    for (const auto& [tag, index] : {std::pair("Lone", 1), {"Many", 1}, {"Many", 2}, {"Many", -1}}) {
        EXPECT_FALSE(stream.Push(tag, index)) << tag << index;
        stream.Pop();
    }
    const Problems expected{{Kind::WrongType, "Lone", "{\"k\":1}", "a list of groups"},
                            {Kind::WrongType, "Many/1", "3", "a group"},
                            {Kind::MissingKey, "Many/2", "", "a group"},
                            {Kind::WrongType, "Many", "[{\"k\":2},3]", "a group"}};
    EXPECT_EQ(Bare(stream.Problems()), expected);
}

TEST(JsonSerializeStream, SavingIntoALoadedDocumentKeepsWhatOthersWrote) {
    CJsonSerializeStream stream(
        R"({"theirs": 1.50, "G": {"a": "old", "also theirs": [1, null], "b": 5}, "H": 7})");
    stream.Push("G", -1);
    stream.BeginSaving();
    EXPECT_TRUE(stream.IsSaving());
    EXPECT_TRUE(stream.Push("G", -1));
    std::string value = "new";
    for (const char* tag : {"b", "a", "c"}) {
        stream.Ser(tag, value, "");
    }
    stream.Pop();
    EXPECT_TRUE(stream.Push("H", -1));
    stream.Ser("d", value, "");
    stream.Pop();
    EXPECT_EQ(stream.Text(), R"({
  "theirs": 1.5,
  "G": {
    "a": "new",
    "also theirs": [
      1,
      null
    ],
    "b": "new",
    "c": "new"
  },
  "H": {
    "d": "new"
  }
}
)");
}

TEST(JsonSerializeStream, GroupsThatCannotBeSavedKeepNothing) {
    CJsonSerializeStream stream;
    std::string value = "lost";
    EXPECT_FALSE(stream.Push("G", 1));
    stream.Ser("a", value, "");
    EXPECT_FALSE(stream.Push("H", -1));
    stream.Pop();
    stream.Pop();
    stream.Pop();
    value = "kept";
    stream.Ser("b", value, "");
    EXPECT_EQ(stream.Text(), "{\n  \"b\": \"kept\"\n}\n");
}

TEST(JsonSerializeStream, SavesNumbersAndListsOfGroups) {
    CJsonSerializeStream stream(R"({"curves": [{"name": "A", "theirs": 1e2, "values": ["1"]}], "csv": "d.csv",
        "last": true, "lone": {}})");
    stream.BeginSaving();
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(stream.Push("curves", i));
        const std::vector<double> values{5.0, -0.1, 1e20, std::nan(""), -0.0, 1e5};
        stream.SaveNumbers("values", std::span(values).first(i == 0 ? 6 : 1));
        stream.Pop();
    }
    EXPECT_FALSE(stream.Push("curves", 3));
    stream.Remove("name");
    stream.Pop();
    EXPECT_FALSE(stream.Push("lone", 1));
    stream.Pop();
    EXPECT_TRUE(stream.Push("lone", 0));
    stream.Pop();
    stream.Remove("csv");
    stream.Remove("csv");
    std::string text = "x";
    stream.Ser("last", text, "");
    EXPECT_EQ(stream.Text(), R"({
  "curves": [
    {
      "name": "A",
      "theirs": 100.0,
      "values": [
        5,
        -0.1,
        1e+20,
        null,
        -0.0,
        100000
      ]
    },
    {
      "values": [
        5
      ]
    }
  ],
  "last": "x",
  "lone": {}
}
)");
}

TEST(JsonSerializeStream, ProblemsStandInTheOrderOfTheDocumentWithTheirLines) {
    CJsonSerializeStream stream("{\"b\": {},\n\"a/c\": [1,\n{\"d\": \"x\"}],\n\"e\": 2, \"e\": 3}");
    LoadText(stream, "b");
    stream.Push("b", -1);
    LoadText(stream, "missing");
    stream.Pop();
    std::vector<Diagnostic> told{Note("b", "a note"), Warning("nowhere", "lost"), Error("a/c/1/d", "x", "y"),
                                 Error("", "of all")};
    for (const auto& problems : {stream.Problems(), stream.UnknownKeys()}) {
        told.insert(told.end(), problems.begin(), problems.end());
    }
    stream.PutInOrder(told);
    std::string order;
    for (const Diagnostic& diagnostic : told) {
        order += diagnostic.Place + ":" + std::to_string(diagnostic.Line) + " ";
    }
    EXPECT_EQ(order, "b:1 a/c:2 a/c/1/d:3 e:4 e:4 nowhere:0 :0 b:1 b/missing:0 ");
}

/// Time enough for work that grows with the document, not with its square.
TEST(JsonSerializeStream, LongListsAndGroupsLoadInLinearTime) {
    constexpr std::size_t kMany = 300000;
    std::string list = "{\"List\": [";
    std::string group = "{";
    for (std::size_t i = 0; i < kMany; ++i) {
        list += (i == 0 ? "" : ",") + std::to_string(i) + ".5";
        group += (i == 0 ? "\"" : ",\"") + std::to_string(i) + "\": {}";
    }
    CJsonSerializeStream lists(list + "]}");
    EXPECT_EQ(LoadList(lists, "List").size(), kMany);
    CJsonSerializeStream groups(group + "}");
    for (std::size_t i = 0; i < kMany; ++i) {
        groups.Refuse("List/" + std::to_string(i), "x", "a number");
    }
    EXPECT_EQ(LoadText(groups, std::to_string(kMany - 1).c_str()), "-");
    EXPECT_EQ(groups.UnknownKeys().size(), kMany - 1);
}

TEST(JsonSerializeStream, ProblemsAreBounded) {
    std::string json = "{\"L\": [null";
    for (int i = 0; i < 20000; ++i) {
        json += ",null";
    }
    CJsonSerializeStream stream(json + "]}");
    EXPECT_EQ(LoadList(stream, "L").size(), 20001U);
    EXPECT_EQ(stream.Problems().size(), 10000U);
}

} // namespace
} // namespace penlode
