#include "files/Streams.h"

#include "documents/tables/QuerySource.h"
#include "files/System.h"

#include <cerrno>
#include <cstring>
#include <iostream>
#include <optional>

namespace cli {

std::string ShownName(const std::string& name) {
    return name == kStandardStream ? "standard input" : millichart::ShownSource(name);
}

std::string ShownOutput(const std::string& name) {
    return name == kStandardStream ? "standard output" : name;
}

millichart::InputText ReadInput(const std::string& name) {
    if (millichart::IsQuerySource(name)) { // which may have a password in it
        return {ShownName(name), "", "is a data base and no file; with --kind and --query it is drawn"};
    }
    return name == kStandardStream ? millichart::ReadStream(std::cin, ShownName(name))
                                   : millichart::ReadFile(name);
}

void WriteOutput(const std::string& name, std::string_view bytes) {
    std::string fault;
    if (name == kStandardStream) {
        std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
        fault = std::cout ? "" : std::string("cannot be written: ") + std::strerror(errno);
    } else {
        std::optional<UnfinishedFile> unfinished;
        fault = millichart::WriteFile(name, bytes,
                                      [&unfinished](const std::string& part) { unfinished.emplace(part); });
    }
    if (!fault.empty()) {
        throw UserError(ShownOutput(name), fault);
    }
}

} // namespace cli
