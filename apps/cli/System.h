#pragma once

/// The little of the operating system that the standard library does not reach.
namespace cli {

bool ErrorsGoToTerminal();

/// Before anything is written: a write beyond the file size limit fails instead of ending the program.
void PrepareSystem();

} // namespace cli
