#include "documents/ChartDocument.h"

#include "documents/Files.h"
#include "penlode/svg/SvgEngine.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

namespace {

using namespace millichart;

std::string Drawn(const ChartDocument& document) {
    penlode::CSvgEngine engine({200.0F, 200.0F}, {});
    document.LayOut().Draw(engine);
    return engine.Text();
}

/// Documents of all kinds.
std::vector<ChartDocument> AllDocuments() {
    std::vector<ChartDocument> documents;
    for (const ChartKind& kind : ChartKinds()) {
        documents.push_back(ChartDocument::FromText(std::string(kind.Template)));
    }
    for (const auto& entry : std::filesystem::directory_iterator(MILLICHART_EXAMPLES)) {
        if (entry.path().extension() == ".json") {
            documents.push_back(ChartDocument::Load(entry.path().string()));
        }
    }
    return documents;
}

ChartDocument Loaded(const std::string& text) {
    return ChartDocument::FromText(text, "t.json");
}

std::string Told(const std::vector<penlode::Diagnostic>& diagnostics) {
    std::string told;
    for (const penlode::Diagnostic& diagnostic : diagnostics) {
        if (diagnostic.Severity != penlode::Severity::Note) {
            told += diagnostic.Place + ": " + diagnostic.Text + "\n";
        }
    }
    return told;
}

std::string Told(const ChartDocument& document) {
    return Told(document.Diagnostics());
}

/// A document's files by their names, and what is said of it.
using Parts = std::map<std::string, std::string>;

/// The cases of a list: each begins with "===" and its document, and "--- NAME" begins any other part of it.
std::vector<Parts> Cases(const std::filesystem::path& list) {
    std::vector<Parts> cases;
    std::string* part = nullptr;
    std::ifstream lines(list);
    for (std::string line; std::getline(lines, line);) {
        if (line == "===") {
            part = &cases.emplace_back()["b.json"];
        } else if (line.starts_with("--- ")) {
            part = &cases.back()[line.substr(4)];
        } else {
            *part += line + "\n";
        }
    }
    return cases;
}

/// What a load and a layout say of a document, a line each, but for notes.
std::string Said(const ChartDocument& document) {
    std::vector<penlode::Diagnostic> found = document.Diagnostics();
    if (document.IsSound()) {
        const LaidOutChart chart = document.LayOut();
        found.insert(found.end(), chart.Diagnostics.begin(), chart.Diagnostics.end());
        document.PutInOrder(found);
    }
    std::string said;
    for (const penlode::Diagnostic& d : found) {
        if (d.Severity != penlode::Severity::Note) {
            said += Utf8FromPath(PathFromUtf8(d.File).filename()) +
                    (d.Line == 0 ? "" : ":" + std::to_string(d.Line)) +
                    (d.Severity == penlode::Severity::Warning ? ": warning: " : ": ") + d.Place +
                    (d.Place.empty() ? "" : ": ") + d.Text + "\n";
        }
    }
    return said;
}

bool Holds(const ChartDocument& document, const std::string& text) {
    return document.Text().find(text) != std::string::npos;
}

/// A folder of the test's own, as tests run side by side, with a name that no code page has.
class InFolder : public testing::Test {
protected:
    InFolder()
        : m_folder(std::filesystem::path(testing::TempDir()) /
                   PathFromUtf8(std::string("millichart-文档📈-") +
                                testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::create_directories(m_folder);
    }

    ~InFolder() override { std::filesystem::remove_all(m_folder); }

    std::filesystem::path Path(const std::string& file) const { return m_folder / PathFromUtf8(file); }

    std::string Name(const std::string& file) const { return Utf8FromPath(Path(file)); }

    void Write(const std::string& file, const std::string& text) const {
        std::ofstream(Path(file), std::ios::binary) << text;
    }

private:
    std::filesystem::path m_folder;
};

} // namespace

TEST_F(InFolder, WhatIsSaidOfDocumentsIsAsListed) {
    for (const auto& list : std::filesystem::directory_iterator(MILLICHART_DIAGNOSTICS)) {
        for (const Parts& parts : Cases(list.path())) {
            for (const auto& [name, text] : parts) {
                Write(name, text);
            }
            const auto table = parts.find("table");
            const ChartDocument document = ChartDocument::FromText(
                parts.at("b.json"), Name("b.json"),
                table == parts.end() ? std::nullopt : std::optional(TableInput{{"table", table->second}}));
            EXPECT_EQ(Said(document), parts.at("said")) << list.path() << "\n" << parts.at("b.json");
            std::filesystem::remove(Path("d.csv"));
        }
    }
}

TEST(LaidOutChart, TellsItsPartsWhateverItsKind) {
    for (const ChartDocument& document : AllDocuments()) {
        const LaidOutChart chart = document.LayOut();
        std::size_t texts = 0;
        chart.VisitTexts([&texts](const ChartText& text) { texts += text.Text.empty() ? 0 : 1; });
        std::size_t textParts = 0;
        chart.VisitParts([&](const PlacedPart& part) {
            textParts += part.Part.Kind >= PartKind::SliceLabel && part.Part.Kind != PartKind::Legend &&
                                 part.Part.Kind != PartKind::LegendSample
                             ? 1
                             : 0;
            EXPECT_TRUE(chart.HitTest(part.Box.Center(), 5.0F)) << document.Title;
        });
        EXPECT_GE(texts, textParts) << document.Title;
        EXPECT_GT(textParts, 0U) << document.Title;
        EXPECT_EQ(chart.HitTest({-5000.0F, 0.0F}), std::nullopt);
    }
    EXPECT_EQ(LaidOutChart().HitTest({}), std::nullopt);
}

TEST(ChartDocument, SavedAgainIsTheSameModelAndPicture) {
    const std::vector<ChartDocument> documents = AllDocuments();
    ASSERT_GT(documents.size(), 30U);
    for (const ChartDocument& document : documents) {
        ASSERT_TRUE(document.IsSound()) << document.Title;
        const ChartDocument again =
            ChartDocument::FromText(document.Text(), MILLICHART_EXAMPLES "/saved.chart.json");
        EXPECT_TRUE(again.Content == document.Content) << document.Title;
        EXPECT_EQ(again.Title, document.Title);
        EXPECT_EQ(again.Location, document.Location);
        EXPECT_EQ(again.Text(), document.Text());
        EXPECT_EQ(Drawn(again), Drawn(document)) << document.Title;
    }
}

TEST(ChartDocument, OfEveryKindIsWrittenInFullWhenItIsNew) {
    for (const ChartKind& kind : ChartKinds()) {
        const ChartDocument loaded = ChartDocument::FromText(std::string(kind.Template));
        ChartDocument fresh;
        fresh.Title = loaded.Title;
        fresh.Location = {3.0F, -4.5F};
        fresh.Content = loaded.Content;
        const ChartDocument again = ChartDocument::FromText(fresh.Text());
        EXPECT_EQ(Told(again), "") << kind.Name;
        EXPECT_EQ(again.Location, fresh.Location);
        EXPECT_TRUE(again.Content == fresh.Content) << kind.Name;
    }
}

TEST(ChartDocument, SavesWhatWasChangedAndKeepsTheRest) {
    ChartDocument document = Loaded(R"({"mine": [1], "kind": "pie", "data": {"values": [1, 2], "note": "n"},
        "property": {"PieBasicProp": {"FixedWidth": "4e1", "ComponentName": ["A", "B"], "x": {"y": 1}}}})");
    auto& pie = std::get<PieDocument>(document.Content);
    const PieDocument was = pie;
    const std::string before = document.Text();
    pie.Data.Values[1] = 2.5;
    pie.Prop.Basic.ComponentColor[1] = penlode::kBlack;
    pie.Prop.Basic.StartAngle = 90.0F;
    for (const char* kept : {"\"mine\": [", "\"note\"", "\"4e1\"", "\"ComponentName\": [", "\"x\": {"}) {
        EXPECT_TRUE(Holds(document, kept)) << kept;
    }
    EXPECT_TRUE(Holds(document, "\"StartAngle\": \"90\""));
    EXPECT_FALSE(Holds(document, "PieStyle")) << "it was not there";
    EXPECT_TRUE(Loaded(document.Text()).Content == document.Content);
    EXPECT_LT(document.Text().find("\"mine\""), document.Text().find("\"kind\""));
    pie = was;
    EXPECT_EQ(document.Text(), before) << "changed back is not changed";
}

TEST(ChartDocument, OptionsAreAGroupOrAWordOrNothing) {
    ChartDocument document = Loaded(R"({"kind": "pie", "data": {"values": [1, 2]}})");
    EXPECT_EQ(document.Options, ChartOptions());
    EXPECT_EQ(document.LayOut().Chart.index(), 1U);
    const std::string before = document.Text();
    const auto saved = [&](const ChartOptions& options) {
        document.Options = options;
        const ChartDocument again = Loaded(document.Text());
        EXPECT_TRUE(again.IsSound()) << document.Text();
        EXPECT_EQ(again.Options, options) << document.Text();
        return document.Text();
    };
    EXPECT_NE(saved(ChartOptions::Readable()).find(R"("options": "readable")"), std::string::npos);
    ChartOptions exact;
    exact.Numbers = NumberStyle::Exact;
    exact.Title.Caption = "T";
    EXPECT_NE(saved(exact).find(R"("Numbers": "Exact")"), std::string::npos);
    EXPECT_EQ(saved({}), before);

    ChartDocument word = Loaded(R"({"kind": "pie", "data": {"values": [1, 2]}, "options": "readable"})");
    word.Options = exact;
    EXPECT_EQ(Loaded(word.Text()).Options, exact) << word.Text();
    ChartDocument group =
        Loaded(R"({"kind": "pie", "data": {"values": [1, 2]}, "options": {"Numbers": "Exact"}})");
    EXPECT_EQ(group.Options.Air, ChartAir::None) << "a missing key asks for nothing";
    const ChartDocument set =
        ChartDocument::FromInput({"", R"({"kind": "pie", "data": {"values": [1]}, "options": "readable"})"},
                                 std::nullopt, {{"options/Palette", "Print"}});
    EXPECT_TRUE(set.IsSound());
    EXPECT_EQ(set.Options.Palette, ChartPalette::Print);
    EXPECT_EQ(set.Options.Air, ChartAir::ThirdOfLine) << "the rest stays as the word has it";
    group.Options = ChartOptions::Readable();
    EXPECT_EQ(Loaded(group.Text()).Options, ChartOptions::Readable()) << group.Text();
    group.Options = {};
    EXPECT_EQ(Loaded(group.Text()).Options, ChartOptions()) << group.Text();
    EXPECT_FALSE(Loaded(R"({"kind": "pie", "data": {"values": [1]}, "options": "redable"})").IsSound());
}

TEST(ChartDocument, NumbersAndFlagsStayWhatTheyAre) {
    ChartDocument document = Loaded(R"({"kind": "curve", "data": {"curves": [{"values": [1, 2]}]},
        "property": {"CurvePlotProp": {"ShowEdge": true, "ShowBackground": 1, "PlotWidth": 90, "PlotHeight": "60",
        "CurveWidth": [0.5], "CurveName": [2020]}}})");
    CurvePlotProp& plot = std::get<CurveDocument>(document.Content).Prop.Plot;
    plot.ShowEdge = 0;
    plot.ShowBackground = 0;
    plot.PlotWidth = 200000.0F;
    plot.PlotHeight = 55.5F;
    plot.CurveWidth = {0.3F, 0.7F};
    plot.CurveName = {"2021 e", "b"};
    std::string saved = document.Text();
    std::erase_if(saved, [](char c) { return c == ' ' || c == '\n'; });
    for (const char* held : {"\"ShowEdge\":false", "\"ShowBackground\":0", "\"PlotWidth\":200000",
                             "\"PlotHeight\":\"55.5\"", "[0.3,0.7]", "[\"2021e\",\"b\"]"}) {
        EXPECT_NE(saved.find(held), std::string::npos) << held << saved;
    }
}

TEST(ChartDocument, WhatItLeavesOpenFollowsTheData) {
    ChartDocument document = Loaded(R"({"kind": "pie", "data": {"values": [1]},
        "property": {"PieBasicProp": {"FixedSize": 1}}})");
    auto& pie = std::get<PieDocument>(document.Content);
    pie.Data.Values.assign(12, 1.0);
    const LaidOutChart chart = document.LayOut();
    EXPECT_EQ(std::get<CBasicPie>(chart.Chart).GetPieProp().Basic.ComponentColor.size(), 12U);
    EXPECT_EQ(Told(chart.Diagnostics), "");
    pie.Prop.Basic.ComponentColor = {penlode::kBlack};
    const std::vector<penlode::Color> filled =
        std::get<CBasicPie>(document.LayOut().Chart).GetPieProp().Basic.ComponentColor;
    ASSERT_EQ(filled.size(), 12U) << "the first stands, and the palette follows";
    EXPECT_EQ(filled.front(), penlode::kBlack);
}

TEST(ChartDocument, GroupsComeAndGo) {
    ChartDocument document = Loaded(R"({"kind": "histogram", "range": {"InitializeValueRange": 9}, "data":
        {"groups": [{"name": "a", "values": [1, null, 3], "mine": 1}, {"name": "b", "values": [4]}]}})");
    auto& bars = std::get<HistogramDocument>(document.Content);
    bars.Data.Values.push_back({5.0, 6.0});
    bars.Data.GroupNames.push_back("c");
    bars.Range.Largest = 20.0;
    EXPECT_TRUE(Loaded(document.Text()).Content == document.Content);
    EXPECT_TRUE(Holds(document, "\"mine\""));
    bars.Data.Values.resize(1);
    bars.Data.GroupNames.clear();
    bars.Range = {};
    EXPECT_TRUE(Loaded(document.Text()).Content == document.Content) << document.Text();
}

TEST_F(InFolder, DataOfATableStayThereUntilTheyAreChanged) {
    Write("d.csv", "name,value\nNorth,1\nSouth,2\n");
    Write("t.json", R"({"kind": "pie", "data": {"csv": "d.csv"}})");
    ChartDocument document = ChartDocument::Load(Name("t.json"));
    ASSERT_EQ(Told(document), "");
    document.Title = "T";
    EXPECT_EQ(document.Save(Name("t.json")), "");
    EXPECT_EQ(ChartDocument::Load(Name("t.json")).DataFiles(), std::vector<std::string>{Name("d.csv")});
    std::get<PieDocument>(document.Content).Data.Values[0] = 7.0;
    EXPECT_EQ(document.Save(Name("t.json")), "");
    const ChartDocument again = ChartDocument::Load(Name("t.json"));
    EXPECT_EQ(again.Title, "T");
    EXPECT_TRUE(again.DataFiles().empty());
    const auto& pie = std::get<PieDocument>(again.Content);
    EXPECT_EQ(pie.Data.Values, (std::vector{7.0, 2.0}));
    EXPECT_EQ(pie.Prop.Basic.ComponentName, (std::vector<std::string>{"North", "South"}));
}

TEST_F(InFolder, HowATableIsReadStandsBesideItsName) {
    Write("d.csv", "x;1,5;7\ny;2,5;8\nz;4;9\nTotal;8;24\n");
    Write("t.json", R"({"kind": "pie", "data": {"source": "d.csv", "columns": [1, "3"], "heading": false,
        "order": "descending", "top": 2, "decimal": ",", "transpose": false}})");
    ChartDocument document = ChartDocument::Load(Name("t.json"));
    EXPECT_EQ(
        Told(document),
        "column 1: \"Total\" is the sum of the rows above and is shown beside them; leave the row out\n");
    auto& pie = std::get<PieDocument>(document.Content);
    EXPECT_EQ(pie.Data.Values, (std::vector{24.0, 9.0, 15.0}));
    EXPECT_EQ(pie.Data.Names, (std::vector<std::string>{"Total", "z", "Other"}));
    pie.Data.Values[0] = 1.0;
    for (const char* gone : {"source", "columns", "heading", "order", "top", "decimal", "transpose"}) {
        EXPECT_FALSE(Holds(document, '"' + std::string(gone) + '"')) << gone;
    }
    EXPECT_EQ(Told(Loaded(R"({"kind": "histogram", "data": {"csv": "a", "source": "b", "heading": 2, "top": 0,
        "order": "up", "decimal": ";"}})")),
              "data/source: found \"b\", expected either csv or source, not both\n"
              "data/heading: found 2, expected true or false\n"
              "data/top: found 0, expected a whole number from 1\n"
              "data/order: found \"up\", expected \"ascending\", \"descending\" or \"name\"\n"
              "data/decimal: found \";\", expected \".\" or \",\"\n"
              ": cannot be read: No such file or directory\n");
}

TEST_F(InFolder, ChangedCurvesTakeThePlaceOfTheirTable) {
    Write("d.csv", "year,a,b\n2001,1,\n2002,3,4\n2003,200,6\n");
    Write("t.json",
          R"({"kind": "curve", "data": {"csv": "d.csv"}, "range": {"NaturalValueRange": [0, 10, 5, 1]},
          "property": {"CurvePlotProp": {"CurveDotStyle": ["solid_circle"]}}})");
    ChartDocument document = ChartDocument::Load(Name("t.json"));
    ASSERT_EQ(Told(document), "");
    std::vector<penlode::Diagnostic> warnings = document.LayOut().Diagnostics;
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].File + ", " + warnings[0].Place, Name("d.csv") + ", column 2");
    EXPECT_EQ(warnings[0].Line, 4U);
    auto& curves = std::get<CurveDocument>(document.Content);
    curves.Data.Values[1][2] = kCurveNull;
    warnings = document.LayOut().Diagnostics;
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].File + ", " + warnings[0].Place, Name("t.json") + ", data/curves/0/values/2")
        << "it is in no table any more";
    const ChartDocument again = Loaded(document.Text());
    const auto& data = std::get<CurveDocument>(again.Content).Data;
    EXPECT_EQ(data.Values, curves.Data.Values);
    EXPECT_EQ(data.Times, curves.Data.Times);
    EXPECT_EQ(data.CurveNames, curves.Data.CurveNames);
    EXPECT_EQ(Drawn(again), Drawn(document));
}

TEST(ChartDocument, ATableInThePlaceOfItsDataIsSavedWithIt) {
    const ChartDocument document =
        ChartDocument::FromText(R"({"kind": "pie", "data": {"values": [1]},
        "property": {"PieBasicProp": {"ComponentName": ["mine"]}}})",
                                "t.json", TableInput{{"d.csv", "theirs,1\nothers,2\n"}});
    const ChartDocument again = Loaded(document.Text());
    const auto& pie = std::get<PieDocument>(again.Content);
    EXPECT_EQ(pie.Data.Values, (std::vector{1.0, 2.0}));
    EXPECT_EQ(pie.Prop.Basic.ComponentName, (std::vector<std::string>{"theirs", "others"}));
}

TEST_F(InFolder, WhatIsWrongIsToldAndNothingThrown) {
    const ChartDocument none = ChartDocument::Load(Name("none.json"));
    EXPECT_FALSE(none.IsSound());
    EXPECT_EQ(Told(none), ": cannot be read: No such file or directory\n");
    EXPECT_EQ(none.LayOut().Extent(), penlode::RectF());
    EXPECT_EQ(Told(none.LayOut().Diagnostics), "kind: found no kind, expected " + ChartKindNames() + "\n");
    const ChartDocument broken = Loaded("{\"kind\": ");
    EXPECT_FALSE(broken.IsSound());
    EXPECT_EQ(broken.Text(), "{\"kind\": ") << "what could not be read is not lost";
    EXPECT_EQ(Loaded("{}").Save(Name("no/such/folder")), "cannot be written: No such file or directory");
    const ChartDocument wrong =
        Loaded(R"({"kind": "pie", "property": {"PieBasicProp": {"FixedWidth": "wide"}},
        "data": {"values": [1]}})");
    EXPECT_EQ(Told(wrong), "property/PieBasicProp/FixedWidth: found \"wide\", expected a number\n");
    EXPECT_TRUE(Holds(wrong, "\"wide\""));
}

TEST_F(InFolder, AReadOnlyFileIsReplacedOrKeptWhole) {
    Write("t.json", "old");
    std::filesystem::permissions(Path("t.json"), std::filesystem::perms::owner_read);
    const std::string fault = Loaded("{}").Save(Name("t.json"));
    const bool isKept = ReadFile(Name("t.json")).Text == "old";
    EXPECT_EQ(fault, isKept ? "cannot be written: Permission denied" : "");
    const std::filesystem::directory_iterator files(Path(""));
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "nothing is left beside it";
    std::filesystem::permissions(Path("t.json"), std::filesystem::perms::owner_all);
}

TEST(ChartDocument, MayNotNameADevice) {
#ifdef _WIN32
    const std::string device = "NUL";
#else
    const std::string device = "/dev/zero";
#endif
    EXPECT_EQ(Told(Loaded(R"({"kind": "pie", "data": {"csv": ")" + device + "\"}}")),
              ": cannot be read: it is no file but a device or a pipe, which a document may not name\n");
}

TEST(ChartDocument, LayoutsTellWhereTheirWarningsStand) {
    ChartDocument document = Loaded("{\"kind\": \"pie\", \"data\": {\"values\": [1]},\n\"property\":"
                                    "{\"PieBasicProp\": {\n\"FixedWidth\": 3, \"FixedSize\": 1,\n"
                                    "\"StartAngle\": 400}}}");
    const std::vector<penlode::Diagnostic> warnings = document.LayOut().Diagnostics;
    ASSERT_EQ(warnings.size(), 2U);
    EXPECT_EQ(warnings[0].File, "t.json");
    EXPECT_EQ(warnings[0].Line, 3U);
    EXPECT_EQ(warnings[1].Line, 4U);
}

TEST(ChartDocument, ValuesOfAHostThatAreNoNumbersAreTold) {
    ChartDocument document =
        Loaded(R"({"kind": "curve", "data": {"curves": [{"name": "Tide", "values": [1, 2, 3]}]},
        "property": {"CurvePlotProp": {"CurveDotStyle": ["solid_circle"]}}})");
    std::get<CurveDocument>(document.Content).Data.Values[0][1] = std::nan("");
    EXPECT_EQ(Told(document.LayOut().Diagnostics),
              "data/curves/0/values/1: nan of \"Tide\" has no place on the value axis, expected numbers\n");
}

TEST(ChartDocument, NamesThatAloneChangedAreSaved) {
    for (const char* text :
         {R"({"kind": "pie", "data": {"values": [1, 2]}})",
          R"({"kind": "histogram", "data": {"groups": [{"values": [1, 2]}]}})",
          R"({"kind": "curve", "data": {"curves": [{"values": [1]}, {"values": [2]}]}})"}) {
        ChartDocument document = Loaded(text);
        const std::vector<std::string> names{"A", "B"};
        std::vector<std::string> saved;
        if (auto* pie = std::get_if<PieDocument>(&document.Content)) {
            pie->Data.Names = names;
            saved = std::get<PieDocument>(Loaded(document.Text()).Content).Prop.Basic.ComponentName;
        } else if (auto* bars = std::get_if<HistogramDocument>(&document.Content)) {
            bars->Data.ComponentNames = names;
            saved = std::get<HistogramDocument>(Loaded(document.Text()).Content).Prop.Plot.ComponentName;
        } else if (auto* curves = std::get_if<CurveDocument>(&document.Content)) {
            curves->Data.CurveNames = names;
            saved = std::get<CurveDocument>(Loaded(document.Text()).Content).Data.CurveNames;
        }
        EXPECT_EQ(saved, names) << text;
    }
}

TEST_F(InFolder, ShortFormsStayAndWhatNoFormHoldsIsNotSaved) {
    ChartDocument document = Loaded(R"({"kind": "pie", "data": {"values": [1, 2]},
        "property": {"PieBasicProp": {"FixedWidth": 37, "ComponentName": ["A", "B"]}}})");
    auto& basic = std::get<PieDocument>(document.Content).Prop.Basic;
    basic.ComponentName[1] = "C|D";
    basic.FixedWidth = 37.5F;
    EXPECT_TRUE(Holds(document, "\"FixedWidth\": 37.5"));
    EXPECT_TRUE(Holds(document, "\"ComponentName\": ["));
    EXPECT_TRUE(Loaded(document.Text()).Content == document.Content);
    for (const char* name : {"C||D", "C|"}) {
        basic.ComponentName[1] = name;
        EXPECT_EQ(document.Save(Name("t.json")),
                  "cannot be saved: property/PieBasicProp/ComponentName/1: found \"" + std::string(name) +
                      "\", expected a text without || and without | at its end");
    }
    Write("broken.json", "{\"kind\": ");
    EXPECT_EQ(ChartDocument::Load(Name("broken.json")).Save(Name("t.json")),
              "cannot be saved, as it could not be read");
    EXPECT_EQ(ChartDocument::Load(Name("none.json")).Save(Name("t.json")),
              "cannot be saved, as it could not be read");
    std::move(document).LayOut();
    EXPECT_EQ(document.Save(Name("t.json")), "cannot be saved, as its content was taken out");
    EXPECT_FALSE(std::filesystem::exists(Path("t.json")));
}

TEST(ChartDocument, OfAHostGetsColoursAndEqualsItsCopy) {
    ChartDocument document;
    document.Content = FindChartKind("pie")->Make();
    auto& pie = std::get<PieDocument>(document.Content);
    pie.Data.Values = {1.0, 2.0};
    const LaidOutChart chart = document.LayOut();
    EXPECT_EQ(std::get<CBasicPie>(chart.Chart).GetPieProp().Basic.ComponentColor.size(), 2U);
    pie.Data.Values[0] = std::nan("");
    pie.LabelOffsets = {{0.0F, std::nanf("")}};
    EXPECT_TRUE(ChartContent(document.Content) == document.Content);
    CurveDocument curve;
    curve.Data.Values = {{std::nan("")}};
    curve.Range.Largest = std::nan("");
    EXPECT_TRUE(CurveDocument(curve) == curve);
    curve.Data.Values[0][0] = 1.0;
    EXPECT_FALSE(CurveDocument() == curve);
}
