// What the examples draw without options, as hosts draw documents that have none.
#include "documents/ChartDocument.h"
#include "documents/Files.h"
#include "penlode/recording/RecordingEngine.h"
#include "support/Fingerprint.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace {

std::string FingerprintOf(const millichart::ChartDocument& document) {
    const millichart::LaidOutChart chart = document.LayOut();
    penlode::CRecordingEngine recorder;
    chart.Draw(recorder);
    Fingerprint fingerprint;
    fingerprint.Add(recorder.Calls());
    fingerprint.Add(chart.Extent());
    return fingerprint.Text();
}

} // namespace

TEST(ClassicalGallery, Stays) {
    std::set<std::string> lines;
    for (const auto& entry : std::filesystem::directory_iterator(MILLICHART_EXAMPLES)) {
        if (entry.path().extension() == ".json") {
            millichart::ChartDocument document =
                millichart::ChartDocument::Load(millichart::Utf8FromPath(entry.path()));
            document.Options = {};
            lines.insert(millichart::Utf8FromPath(entry.path().filename()) + ": " + FingerprintOf(document) +
                         "\n");
        }
    }
    std::string drawn;
    for (const std::string& line : lines) {
        drawn += line;
    }
    ExpectKeptFingerprints("classical-gallery", drawn);
}
