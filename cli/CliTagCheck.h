#pragma once

#include <QString>

// --check-tags SOURCE OUTPUT: what of the source's tags arrived in the output.
namespace CliTagCheck {
// Prints the fields kept, changed and lost with their reasons; returns the exit status: 0 when
// nothing was lost, 1 otherwise (also when a file cannot be read).
int print(const QString& source, const QString& output);
} // namespace CliTagCheck
