#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

enum class Severity { Error, Warning, Note };

/// Where in a file something stands, or in the document if the file has no name.
struct FilePlace {
    std::string File = {};
    std::size_t Line = 0;   ///< from 1; 0 where it is found from the place
    std::string Place = {}; ///< as in a message
};

/// What the command has to tell about a file. All texts are UTF-8.
struct Message {
    std::string File;
    Severity Weight = Severity::Error;
    std::size_t Line = 0;    ///< from 1; 0 where no line is meant
    std::string Place = {};  ///< keys joined by "/", or "line 3, column 7"; empty for the whole file
    std::string Found = {};  ///< empty where there is nothing to show
    std::string Wanted = {}; ///< what was expected, or the default that was taken
    std::string Text = {};   ///< the sentence; empty for "found ..., expected ..."
    bool IsRest = false;     ///< stands for others like those before it, too many to be kept
};

/// The most messages of one source that are kept.
inline constexpr std::size_t kMaxKept = 10000;

/// A sentence about what stands at a place.
Message At(const FilePlace& place, Severity severity, std::string sentence);

/// The text on one line, with control characters written out as \x1B, so that names and values from a file
/// cannot steer a terminal.
std::string Printable(std::string_view text);

/// The message on one line: `sales.json:12: data/values/3: found "x", expected a number`. Warnings and notes
/// say that they are.
std::string ToLine(const Message& message);

/// Messages on one line each: of each file the first 50 errors and warnings and how many there are more, and
/// every note if they are wanted.
std::vector<std::string> ToLines(const std::vector<Message>& messages, bool withNotes);

/// The sentence alone, without file and place.
std::string SentenceOf(const Message& message);

/// All messages as a JSON list of objects, one a line.
std::string ToJson(const std::vector<Message>& messages);

const char* NameOf(Severity severity);

/// How many messages of that weight there are: "2 errors", "at least 10000 errors"
std::string CountedMessages(const std::vector<Message>& messages, Severity severity);

/// "1 value", "2 values"
std::string Counted(std::size_t count, const std::string& noun);

bool HasErrors(const std::vector<Message>& messages);

} // namespace cli
