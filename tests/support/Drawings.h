#pragma once

#include "penlode/recording/RecordingEngine.h"
#include "support/KeptFiles.h"

#include <sstream>
#include <string>

template <class Chart> std::string Drawn(const Chart& chart) {
    penlode::CRecordingEngine engine;
    chart.Draw(&engine);
    return engine.Text();
}

/// The rest of each line of a drawing that begins with `operation`.
inline std::string Only(const std::string& drawing, const std::string& operation) {
    std::istringstream lines(drawing);
    std::string found;
    for (std::string line; std::getline(lines, line);) {
        found += line.rfind(operation, 0) == 0 ? line.substr(operation.size()) + "\n" : "";
    }
    return found;
}

/// A drawing with the units that each text sets in its container left out, and what moves and turns it on the
/// text's own line: `at 3 35 turned 0: "10" ...`
inline std::string Brief(const std::string& drawing) {
    const auto argument = [](const std::string& line) {
        return line.substr(line.find(' ') + 1, line.rfind(" prepend") - line.find(' ') - 1);
    };
    std::istringstream lines(drawing);
    std::string brief;
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("TranslateTransform", 0) == 0) {
            brief += "at " + argument(line);
        } else if (line.rfind("RotateTransform", 0) == 0) {
            brief += " turned " + argument(line) + ": ";
        } else if (line.rfind("SetPage", 0) != 0 && line.rfind("BeginContainer", 0) != 0 &&
                   line.rfind("EndContainer", 0) != 0) {
            brief += line + "\n";
        }
    }
    return brief;
}

/// Holds a whole drawing, in brief, against data/drawings. A file that is deleted is written anew by
/// MILLICHART_KEEP=1.
inline void ExpectDrawing(const std::string& name, const std::string& drawing) {
    const std::string brief = Brief(drawing);
    EXPECT_EQ(brief, Kept("drawings/" + name + ".txt", brief));
}
