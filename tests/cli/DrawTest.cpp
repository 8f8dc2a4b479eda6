#include "support/Command.h"
#include "support/PngFile.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

class Draw : public testing::Test {
protected:
    std::string Path(const std::string& name) const { return m_folder.Path(name); }

    std::string Write(const std::string& name, const std::string& text) const {
        return m_folder.Write(name, text);
    }

    /// What the command says of a document, without its name and the file's.
    std::string Complaint(const std::string& text) const {
        const std::string input = Write("a.json", text);
        const Outcome outcome = Millichart("draw " + input + " -o " + Path("a.png"));
        EXPECT_EQ(outcome.Status, 1) << text;
        EXPECT_FALSE(fs::exists(Path("a.png"))) << text;
        std::string said = outcome.Text;
        const std::string head = "millichart: " + input + ": ";
        for (std::size_t at = said.find(head); at != std::string::npos; at = said.find(head)) {
            said.erase(at, head.size());
        }
        return said;
    }

private:
    TemporaryFolder m_folder;
};

const char* const kSmall =
    R"({"kind": "pie", "property": {"PieBasicProp": {"ComponentColor": ["#336699", "#993366"],
    "FixedSize": 1}}, "data": {"values": [1, 2.5]}})";

} // namespace

TEST_F(Draw, EveryExampleInItsRealSize) {
    int drawn = 0;
    for (const auto& entry : fs::directory_iterator(MILLICHART_EXAMPLES)) {
        const Outcome outcome = Millichart("draw " + entry.path().string() + " --dpi 60 -o " + Path("a.png"));
        EXPECT_EQ(outcome.Status, 0) << entry.path();
        EXPECT_EQ(outcome.Text, "");
        ++drawn;
    }
    EXPECT_GE(drawn, 6);

    // A pie of 20 mm and 5 mm round it, at 254 dots per inch: 10 pixels a millimetre.
    const Outcome outcome = Millichart("draw " + Write("s.json", kSmall) + " --dpi 254 -o " + Path("s.png"));
    EXPECT_EQ(outcome.Status, 0) << outcome.Text;
    const std::string png = ReadAll(Path("s.png"));
    EXPECT_EQ(png.substr(1, 3), "PNG");
    EXPECT_EQ(PngNumber(png, "IHDR", 0), 300U);
    EXPECT_EQ(PngNumber(png, "IHDR", 4), 300U);
    EXPECT_EQ(PngNumber(png, "pHYs", 0), 10000U);
}

TEST_F(Draw, TheExampleOfTheFormatsDescription) {
    const std::string description = ReadAll(MILLICHART_DOCS "/document-format.md");
    const std::size_t begin = description.find("```json") + 7;
    const std::string example = description.substr(begin, description.find("```", begin) - begin);
    const Outcome outcome = Millichart("draw " + Write("d.json", example) + " -o " + Path("d.png"));
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Text, "");
}

TEST_F(Draw, LabelsMoveWithTheirOffsetsWithOrWithoutNames) {
    const std::string labelled = R"({"kind": "pie", "property": {"PieBasicProp": {"StartAngle": -90},
        "PieLabelProp": {"ShowPercentLabel": 1}}, "data": {"values": [1, 2]}, "labelOffsets": ["0 0", ")";
    Millichart("draw " + Write("a.json", labelled + "0 0\"]}") + " -o " + Path("a.png"));
    Millichart("draw " + Write("b.json", labelled + "0 30\"]}") + " -o " + Path("b.png"));
    const std::string a = ReadAll(Path("a.png"));
    const std::string b = ReadAll(Path("b.png"));
    EXPECT_GT(PngNumber(b, "IHDR", 4), PngNumber(a, "IHDR", 4))
        << "the page grows with the label that moved down";
}

TEST_F(Draw, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(Complaint(R"({"kind": "pye"})"), "kind: found \"pye\", expected \"pie\"\n");
    EXPECT_EQ(Complaint(R"({"version": 2, "kind": "pie", "data": {"values": [1]}})"),
              "version: found 2, expected 1\n");
    EXPECT_EQ(Complaint(R"({"kind": "pie", "data": {"values": [1, "x", {}]}})"),
              "data/values/2: found {}, expected a text\ndata/values/1: found \"x\", expected a number\n");
    EXPECT_EQ(Complaint(R"({"kind": "pie", "data": {"values": []}})"),
              "found nothing to draw, expected values in data/values and a size above 0\n");
    EXPECT_EQ(
        Complaint(R"({"kind": "pie", "location": "1", "data": {"values": [1]}, "property": {"PieBasicProp":
        {"PieStyle": "4D", "PenSepLine": [], "ComponentColor": ["#12345"]}, "PieLabelProp": 3}})"),
        "property/PieBasicProp/PieStyle: found \"4D\", expected one of \"2D\", \"3D\"\n"
        "property/PieBasicProp/PenSepLine: found [], expected a text\n"
        "property/PieBasicProp/ComponentColor/0: found \"#12345\", expected a colour such as #FF336699\n"
        "property/PieLabelProp: found 3, expected a group\n"
        "location: found \"1\", expected a point such as \"12.5 40\"\n");
}

TEST_F(Draw, SaysWhereADocumentCannotBeRead) {
    EXPECT_NE(Complaint("").find("line 1, column 1"), std::string::npos);
    EXPECT_NE(Complaint("{\"kind\": \"pie\",\n  \"data\": tru}").find("line 2, column 1"), std::string::npos);
    EXPECT_NE(Complaint("{\"kind\": \"\xFF\"}").find("line 1, column 1"), std::string::npos);
    EXPECT_NE(Complaint(std::string(100000, '[')).find("64"), std::string::npos);
    const Outcome missing = Millichart("draw " + Path("none.json") + " -o " + Path("a.png"));
    EXPECT_EQ(missing.Status, 1);
    EXPECT_NE(missing.Text.find("none.json: cannot be read"), std::string::npos);
    const Outcome folder = Millichart("draw " + Path("") + " -o " + Path("a.png"));
    EXPECT_EQ(folder.Status, 1);
    EXPECT_NE(folder.Text.find("cannot be read: it is a folder"), std::string::npos);
}

TEST_F(Draw, UnsoundNumbersAreRefusedNotDrawn) {
    EXPECT_NE(Complaint(R"({"kind": "pie", "data": {"values": ["nan"]}})").find("data/values/0"),
              std::string::npos);
    EXPECT_NE(Complaint(R"({"kind": "pie", "data": {"values": [1e300]}})").find("5000 x 5000"),
              std::string::npos);
    EXPECT_NE(Complaint(R"({"kind": "pie", "data": {"values": [1, -2]}})").find("5000 x 5000"),
              std::string::npos);
}

TEST_F(Draw, UnknownKeysAreToldAndIgnored) {
    std::string text = kSmall;
    text.insert(text.size() - 1, R"(, "Colour": 1)");
    const std::string input = Write("u.json", text);
    const Outcome outcome = Millichart("draw " + input + " -o " + Path("u.png"));
    EXPECT_EQ(outcome.Status, 0);
    EXPECT_EQ(outcome.Text, "millichart: " + input + ": Colour: an unknown key, ignored\n");
}

TEST_F(Draw, AFailureLeavesTheOldPictureWhole) {
    const std::string picture = Write("p.png", "old");
    EXPECT_EQ(Millichart("draw " + Write("b.json", "{") + " -o " + picture).Status, 1);
    EXPECT_EQ(ReadAll(picture), "old");

    const Outcome outcome =
        Millichart("draw " + Write("g.json", kSmall) + " -o " + Path("no/such/folder.png"));
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_NE(outcome.Text.find("folder.png: cannot be written: No such file or directory"),
              std::string::npos);
    EXPECT_EQ(Millichart("draw " + Path("g.json") + " -o " + Path("")).Status, 1);
}

TEST_F(Draw, WrongUsageIsStatusTwo) {
    EXPECT_EQ(Millichart("").Status, 2);
    EXPECT_EQ(Millichart("draw").Status, 2);
    EXPECT_EQ(Millichart("paint x").Status, 2);
    EXPECT_EQ(Millichart("draw a.json -o a.png --dpi 0").Status, 2);
    EXPECT_EQ(Millichart("draw --help").Status, 0);
}
