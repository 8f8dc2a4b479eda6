#include "CommandTest.h"

#include <sstream>

namespace {

class Curve : public cli_test::CommandTest {
protected:
    /// One entry of what `inspect` shows of the layout.
    std::string Shown(const std::string& document, const std::string& key,
                      const std::string& options = "") const {
        Write("c.json", document);
        const Outcome outcome = Run("millichart inspect c.json " + options +
                                    " | sed '/\"texts\":/,$d' | grep '\"" + key + "\":'");
        EXPECT_EQ(outcome.Errors, "");
        const std::size_t begin = outcome.Output.find(": ");
        return begin == std::string::npos ? outcome.Output : outcome.Output.substr(begin + 2);
    }

    /// The texts of the horizontal axis that are drawn.
    std::string Labels(const std::string& document) const {
        Write("c.json", document);
        std::istringstream calls(
            Run("millichart inspect c.json | grep '\"call\"' | grep -o '\"text\":\"[^\"]*' | cut -d'\"' -f4")
                .Output);
        std::string all;
        for (std::string text; std::getline(calls, text);) {
            all += text + " ";
        }
        return all;
    }
};

/// A plot of 100 mm x 10 mm over 0 to 10, with no value axis or legend beside it, and markers for points that
/// stand alone.
std::string Lines(const std::string& data, const std::string& plot = "") {
    return R"({"kind": "curve", "property": {"CurveVerAxisProp": {"ShowVerAxis": 0},
        "CurveLegendProp": {"ShowLegend": 0}, "CurvePlotProp": {"CurveDotStyle": ["solid_circle"],
        "PlotWidth": 100, "PlotHeight": 10)" +
           plot + "}},\n\"range\": {\"InitializeValueRange\": 9},\n\"data\": " + data + "}";
}

} // namespace

TEST_F(Curve, PlacesTheDocumentsCurves) {
    EXPECT_EQ(
        Shown(Lines(R"({"curves": [{"times": [0, 4], "values": [0, 5]}, {"values": [10, null, "2.5"]}]})"),
              "curves"),
        "[{\"points\":[[0,10],[100,5]],\"nulls\":[]},{\"points\":[[0,0],[25,10],[50,7.5]],\"nulls\":[1]}]\n");
}

TEST_F(Curve, ReadsATableOfTimes) {
    Write("d.csv", "\xEF\xBB\xBFyear;北;South\r\n10;1;\r\n;;\r\n20;2.5;3\r\n30;5\r\n");
    const std::string document = Lines(R"({"csv": "d.csv"})");
    EXPECT_EQ(Shown(document, "curves"), "[{\"points\":[[0,9],[50,7.5],[100,5]],\"nulls\":[]},"
                                         "{\"points\":[[0,10],[50,7],[100,10]],\"nulls\":[0,2]}]\n");
    EXPECT_EQ(Labels(document), "10 12 14 16 18 20 22 24 26 28 30 ");
}

TEST_F(Curve, TextsInTheFirstColumnAreLabels) {
    std::string months = "month,sales\n";
    for (int i = 1; i <= 24; ++i) {
        months += "m" + std::to_string(i) + "," + std::to_string(i % 9) + "\n";
    }
    Write("d.csv", months);
    EXPECT_EQ(Labels(Lines(R"({"csv": "d.csv"})")), "m1 m6 m11 m16 m21 ");
    EXPECT_EQ(Labels(Lines(R"({"csv": "d.csv", "labels": ["a", "b"]})")), "a b ");
}

TEST_F(Curve, TheUsersTableBringsItsOwnNamesAndLabels) {
    Write("d.csv", "day,Asia,Europe\nMon,1,2\nTue,3,4\n");
    const std::string document = Lines(R"({"curves": [{"values": [5, 6, 7]}], "labels": ["a", "b", "c"]})",
                                       R"(, "CurveName": ["Old"])");
    EXPECT_EQ(Labels(document), "a b c ");
    Write("c.json", document);
    const std::string shown = Run("millichart inspect c.json --data d.csv").Output;
    EXPECT_NE(shown.find("\"text\":\"Mon\""), std::string::npos);
    EXPECT_EQ(shown.find("\"text\":\"a\""), std::string::npos);
}

TEST_F(Curve, EmptyColumnsAtTheEndAreNoCurves) {
    Write("d.csv", "1,5,,\n2,6,,\n");
    EXPECT_EQ(Shown(Lines(R"({"csv": "d.csv"})"), "curves"), "[{\"points\":[[0,5],[100,4]],\"nulls\":[]}]\n");
    // Unless the document names them; and one is left.
    EXPECT_NE(Shown(Lines(R"({"csv": "d.csv"})", R"(, "CurveName": ["East", "West"])"), "curves")
                  .find("\"nulls\":[0,1]"),
              std::string::npos);
    Write("d.csv", "1,\n2,\n");
    EXPECT_EQ(Shown(Lines(R"({"csv": "d.csv"})"), "curves"),
              "[{\"points\":[[0,10],[100,10]],\"nulls\":[0,1]}]\n");
    Write("d.csv", "1,5,\n2,6,7\n");
    EXPECT_NE(Shown(Lines(R"({"csv": "d.csv"})"), "curves").find("\"nulls\":[0]"), std::string::npos);
}

TEST_F(Curve, LabelsOfThousandsOfRowsKeepTheirPlaces) {
    std::string rows = "row,value\n";
    for (int i = 0; i < 3000; ++i) {
        rows += "row " + std::to_string(i) + "," + std::to_string(i % 7) + "\n";
    }
    Write("d.csv", rows);
    EXPECT_EQ(Labels(Lines(R"({"csv": "d.csv"})")), "row 0 row 500 row 1000 row 1500 row 2000 row 2500 ");
}

TEST_F(Curve, AMillionRowsAreDrawnInNoTime) {
    const std::string rows = "seq 1000000 | awk '{print $1 \",\" ($1 * 7919) % 1000}'";
    Write("c.json", R"({"kind": "curve", "data": {"csv": "d.csv"}})");
    const Outcome outcome =
        Run(rows + " > d.csv; for f in svg pdf png; do millichart draw c.json -o c.$f || exit 1; "
                   "test $(stat -c %s c.$f) -lt 1000000 || exit 2; done");
    EXPECT_EQ(outcome.Status, 0) << outcome.Errors;
}
