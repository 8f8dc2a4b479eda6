#include "commands/CommandLine.h"
#include "files/Console.h"
#include "files/QueryProgress.h"
#include "files/StreamProgress.h"
#include "files/Streams.h"
#include "files/System.h"

#include <new>

namespace {

constexpr int kInputFailed = 1;

/// Carries out what the command line asks for; the program's exit status.
struct Carry {
    int operator()(const cli::Finished& finished) const { return finished.Status; }

    int operator()(const cli::DrawOptions& options) const { return StatusOf(cli::Draw(options)); }

    int operator()(const cli::CheckOptions& options) const { return StatusOf(cli::Check(options)); }

    int operator()(const cli::InspectOptions& options) const { return StatusOf(cli::Inspect(options)); }

    int operator()(const cli::NewOptions& options) const { return StatusOf(cli::WriteNew(options)); }

    int operator()(const cli::EditOptions& options) const {
        cli::Edit(options);
        return 0;
    }

private:
    static int StatusOf(bool good) { return good ? 0 : kInputFailed; }
};

} // namespace

int main(int argc, char** argv) {
    try {
        cli::PrepareSystem();
        cli::WatchQueries();
        cli::WatchStreams();
        return std::visit(Carry(), cli::ParseCommandLine(cli::Arguments(argc, argv)));
    } catch (const cli::UsageError& error) {
        cli::Tell(error.what());
        return cli::kWrongUsage;
    } catch (const cli::UserError& error) {
        cli::Tell(error.what());
    } catch (const std::bad_alloc&) {
        cli::Tell(cli::kTooLittleMemory);
    } catch (const std::exception& error) {
        cli::Tell(std::string("stopped: ") + error.what());
    }
    return kInputFailed;
}
