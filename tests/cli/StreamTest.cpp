#include "CommandTest.h"

#include <random>
#include <string>

namespace {

/// The command on tables that are read row by row.
class Stream : public cli_test::CommandTest {
protected:
    /// A random walk over times, with several curves and gaps.
    static std::string Table(std::size_t rows, std::size_t curves, unsigned gapIn, unsigned seed) {
        std::mt19937 random(seed);
        std::string text = "time,a,b,c";
        text.resize(4 + 2 * curves);
        std::vector<int> values(curves);
        long time = -1000;
        for (std::size_t row = 0; row < rows; ++row) {
            text += "\n" + std::to_string(time);
            time += static_cast<long>(random() % 4);
            for (int& value : values) {
                value += static_cast<int>(random() % 2001) - 1000;
                text += ',';
                text += gapIn != 0 && random() % gapIn == 0 ? "" : std::to_string(value) + ".5";
            }
        }
        return text;
    }

    void ExpectSamePicture(const std::string& table, const std::string& options = "") {
        Write("t.csv", table);
        for (const std::string format : {"png", "svg", "pdf"}) {
            const std::string draw =
                "millichart draw --quiet --kind line t.csv " + options + " --format " + format;
            const Outcome outcome = Run("export SOURCE_DATE_EPOCH=0; " + draw + " --stream -o s && " + draw +
                                        " --no-stream -o h && cmp s h");
            EXPECT_EQ(outcome.Output + outcome.Errors, "") << format << " " << options;
            EXPECT_EQ(outcome.Status, 0);
        }
    }
};

} // namespace

TEST_F(Stream, DrawsTheSamePictureAsAHeldTable) {
    ExpectSamePicture(Table(70, 1, 0, 1));
    ExpectSamePicture(Table(40000, 3, 500, 2));
    ExpectSamePicture(Table(40000, 1, 5, 3), "--log");
    ExpectSamePicture(Table(30000, 2, 0, 4), "--size 300x100 --dpi 200");
    ExpectSamePicture("day,v\n2024-01-01,1\n2024-01-09,4\n2024-02-03,2\n");
}

TEST_F(Stream, ReadsAPipeAndTakesADocumentsLook) {
    Write("t.csv", Table(60000, 1, 0, 5));
    const Outcome outcome =
        Run("cat t.csv | millichart draw --kind line - --stream -o p.png &&"
            "millichart draw --kind line t.csv --no-stream -o h.png && cmp p.png h.png &&"
            "millichart new line >d.json && for o in --stream --no-stream; do millichart draw d.json --data "
            "t.csv --set 'property/CurvePlotProp/CurveDotStyle=[\"none\"]' $o -o d$o.svg; done; "
            "cmp d--stream.svg d--no-stream.svg");
    EXPECT_EQ(outcome.Output, "");
    EXPECT_EQ(outcome.Status, 0);
}

TEST_F(Stream, TellsOfTimesInNoOrderAndOfWrongCells) {
    Write("t.csv", "1,5\n3,6\n2,7\n");
    EXPECT_EQ(Run("millichart draw --kind line t.csv --stream -o t.png").Errors,
              "millichart: t.csv:3: warning: column 1: the times are not in order; the line is drawn in the "
              "order of the times\n");
    Write("w.csv", "1,5\n2,x\n");
    const std::string held = Run("millichart draw --kind line w.csv --no-stream").Errors;
    EXPECT_EQ(Run("millichart draw --kind line w.csv --stream").Errors, held);
    Write("n.csv", "a,5\nb,4\n");
    EXPECT_EQ(Run("millichart draw --kind line n.csv --stream && test -s n.png").Status, 0)
        << "what has no times is held";
}
