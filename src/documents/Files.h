#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

/// Reading and writing whole files, without exceptions. Names are UTF-8, whatever the system's own are.
namespace millichart {

std::filesystem::path PathFromUtf8(const std::string& name);
std::string Utf8FromPath(const std::filesystem::path& path);

/// A text and where it comes from.
struct InputText {
    std::string Name; ///< as diagnostics call it
    std::string Text = {};
    std::string Fault = {}; ///< why it could not be read, as in "cannot be read: it is a folder"; or empty
};

/// Whoever types a file's name may name a pipe or a device; a document, which may come from anybody, not.
enum class NamedBy { User, Document };

/// The bytes of a file, at most 1 GB.
InputText ReadFile(const std::string& name, NamedBy who = NamedBy::User);

/// The bytes of a stream, such as the standard input, at most 1 GB.
InputText ReadStream(std::istream& stream, const std::string& name);

/// Writes a file beside `name` and then gives it that name, so that a failure leaves what was there before
/// and a link stays one; a device or a pipe is written to. Gives the reason of a failure, as in "cannot be
/// written: No space left on device", or an empty text. `begin` is told what the unfinished file is called.
std::string WriteFile(const std::string& name, std::string_view bytes,
                      const std::function<void(const std::string&)>& begin = {});

} // namespace millichart
